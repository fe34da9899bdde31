#pragma once
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Add-in/build/modProcessControl.h"
#include "Add-in/commands/modMenuManagement.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/project/frmSaveProjectFiles.h"
#include "Add-in/project/modProjectHandler.h"

namespace fernwick {

/// The dependencies of the compile driver.
struct CompileServices {
    Platform& platform;
    ErrorReport& errors;
    modRegistry2& registry;
    modQLInstallInfo& install;
    modProjectHandler& projects;
    modCompileErrorManagement& messages;
    modDependencyManagement& dependencies;
    modProcessControl& processes;
    frmSaveProjectFiles& saveFiles;
    modMenuManagement& menu;
};

} // namespace fernwick
