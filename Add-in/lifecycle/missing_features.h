#pragma once
// The feature that this build lacks: the zoom window. Each call is where the feature belongs; its own class will replace
// it.
#include "Add-in/platform/host_project.h"
#include <string>

namespace fernwick {

class MissingFeatures {
public:
    virtual ~MissingFeatures() = default;

    virtual void createZoomWindow() = 0;
    virtual void InitZoomWindow() = 0;
    virtual void SaveZoomWindowState() = 0;
    /// Makes the zoom window follow this form's designer.
    virtual void SetZoomForm(const basic::Ref<vbide::VBComponent>& form) = 0;

    /// Informs the user that the chosen command is not available in this build.
    virtual void notInThisBuild() = 0;
};

} // namespace fernwick
