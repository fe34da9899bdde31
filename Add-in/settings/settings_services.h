#pragma once
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Add-in/commands/modHelpManagement.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modAddinPrefsManagement.h"
#include "Add-in/core/trusted_folders.h"
#include "Add-in/devices/modDeviceManagement.h"
#include "Add-in/project/modProjectHandler.h"

namespace fernwick {

/// What the settings dialog and its pages use.
struct SettingsServices {
    Platform& platform;
    ErrorReport& errors;
    AddIn& addIn;
    modAddinPrefsManagement& prefs;
    const modQLInstallInfo& install;
    modDeviceManagement& devices;
    modMenuManagement& menu;
    modHelpManagement& help;
    modProjectHandler& projects;
    modDependencyManagement& dependencies;
};

} // namespace fernwick
