#pragma once
// The commands of the window itself, as controls in the host's menus, where add-ins find them and everything is drawn
// alike.
#include "Apps/workbench/window/main_window.h"
#include <functional>

namespace workbench {

/// What commands ask of the program.
struct WindowDeeds {
    std::function<void()> newProject;
    std::function<void()> saveProject;
    std::function<void()> removeProject;
    /// Compiles the active project and sends it to its device.
    std::function<void()> start;
    std::function<void()> help;
    std::function<void()> about;
};

/// The toolbar of the window's own commands.
inline constexpr const char* kStandardToolbar = "Standard";

/// Fills the host's menus and its standard toolbar. The host's commands to save and remove a project come to ask the user
/// where the model alone would not. The window and the deeds outlive the host's bars.
void addWindowCommands(host::Host& host, MainWindow& window, WindowDeeds deeds);

/// The popup of the recent projects.
std::shared_ptr<host::Bar> recentMenu(host::Host& host);

} // namespace workbench
