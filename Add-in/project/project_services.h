#pragma once
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/devices/modDeviceManagement.h"
#include "Add-in/platform/platform.h"
#include "Add-in/project/modProjectTemplates.h"

namespace fernwick {

/// What the project objects and the modules around them lean on.
struct ProjectServices {
    ErrorReport& errors;
    Platform& platform;
    const modQLInstallInfo& install;
    AddIn& addIn;
    modDeviceManagement& devices;
    modProjectTemplates& templates;
};

} // namespace fernwick
