#pragma once
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Add-in/build/frmCompileWarning.h"
#include "Add-in/build/frmValidate.h"
#include "Add-in/core/settings_dialog.h"

namespace fernwick {

/// The dependencies of the deployment driver, in addition to PipeServices.
struct DeployServices {
    AddIn& addIn;
    modAddinPrefsManagement& prefs;
    modProjectHandler& projects;
    modCompileErrorManagement& messages;
    modDependencyManagement& dependencies;
    frmCompile& compile;
    frmCompileWarning& compileWarning;
    frmValidate& validate;
    SettingsDialog& settings;
};

} // namespace fernwick
