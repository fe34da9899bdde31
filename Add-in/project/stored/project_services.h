#pragma once
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/devices/modDeviceManagement.h"
#include "Add-in/platform/platform.h"
#include "Add-in/project/stored/modProjectTemplates.h"

namespace fernwick {

/// The dependencies of project objects and of the modules around them.
struct ProjectServices {
    ErrorReport& errors;
    Platform& platform;
    const modQLInstallInfo& install;
    AddIn& addIn;
    modDeviceManagement& devices;
    modProjectTemplates& templates;
};

} // namespace fernwick
