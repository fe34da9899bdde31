#pragma once
// The settings dialog, as lower rooms use it.
#include "Add-in/platform/host_project.h"
#include <string>

namespace fernwick {

// The dialog's pages: their names in the tree, and their texts there.
inline constexpr char kAppNamePage[] = "App Name/Icon";
inline constexpr char kDependenciesPage[] = "Dependencies";
inline constexpr char kCompilerSettingsPage[] = "Compiler Settings";
inline constexpr char kMyDevicesPage[] = "My Devices";
/// Has no node in the tree.
inline constexpr char kCompileTargetsPage[] = "Compile Targets";
/// Not a page: the dialog opens on the one that was shown last.
inline constexpr char kAnySettingsPage[] = "INVALID DIALOG NAME";

class SettingsDialog {
public:
    virtual ~SettingsDialog() = default;
    /// Opens the dialog on a page and returns when it has closed. Without a project only the settings of the user are
    /// offered.
    virtual void ShowQuinloftSettings(const basic::Ref<vbide::VBProject>& project, const std::string& pageName,
                                      bool scanOnActivate) = 0;
};

} // namespace fernwick
