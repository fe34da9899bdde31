#pragma once
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/core/procedure.h"
#include "Add-in/devices/modDeviceManagement.h"
#include "Add-in/platform/platform.h"

namespace fernwick {

/// The dependencies of everything that works with a device's pipe.
struct PipeServices {
    Platform& platform;
    ErrorReport& errors;
    const modQLInstallInfo& install;
    modDeviceManagement& devices;
};

} // namespace fernwick
