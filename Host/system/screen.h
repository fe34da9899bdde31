#pragma once
#include "Add-in/platform/screen.h"

namespace host {

/// 15 twips a pixel wherever we run, so that a project's forms come out alike everywhere; the machine's own fonts.
class Screen : public fernwick::Screen {
public:
    float TwipsPerPixelX() const override { return 15; }
    float TwipsPerPixelY() const override { return 15; }
    bool FontFamilyExists(const std::string& name) const override;
};

} // namespace host
