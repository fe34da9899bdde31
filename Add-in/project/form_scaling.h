#pragma once
// Converts forms that were laid out at another screen resolution.
#include "Add-in/platform/host_project.h"

namespace fernwick {

/// In twips per pixel.
struct Resolution {
    float x, y;
    friend bool operator==(const Resolution&, const Resolution&) = default;
};

/// Scales every form and its controls. What cannot be converted is left unchanged.
void ScaleForms(const basic::Ref<vbide::VBProject>& project, Resolution now, Resolution then);

} // namespace fernwick
