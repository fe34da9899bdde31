#pragma once
// The features that this build lacks: the zoom window, and the converter
// for projects of unknown devices. Each call is where its feature belongs; the feature's own class will replace it.
#include "Add-in/platform/host_project.h"
#include <string>

namespace fernwick {

/// What the user wants to do with a project whose device is not available here.
struct UnknownDeviceChoice {
    /// The project stays open unchanged.
    bool accepted = false;
    /// Otherwise the project that replaces it; "" for none.
    std::string replacementPath;
};

class MissingFeatures {
public:
    virtual ~MissingFeatures() = default;

    virtual void createZoomWindow() = 0;
    virtual void InitZoomWindow() = 0;
    virtual void SaveZoomWindowState() = 0;
    /// Makes the zoom window follow this form's designer.
    virtual void SetZoomForm(const basic::Ref<vbide::VBComponent>& form) = 0;

    virtual UnknownDeviceChoice AskAboutUnknownDevice(const basic::Ref<vbide::VBProject>& project) = 0;

    /// Informs the user that the chosen command is not available in this build.
    virtual void notInThisBuild() = 0;
};

} // namespace fernwick
