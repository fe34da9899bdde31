#pragma once
// Adds the window's commands to the host's menus, where add-ins find them too.
#include "Apps/workbench/window/commands.h"
#include "Host/model/bars/bar.h"
#include "Host/model/host.h"

namespace workbench {

/// The toolbar of the window's own commands.
inline constexpr const char* kStandardToolbar = "Standard";

/// Fills the host's menus and its standard toolbar from the table of commands. Changes the host's own commands
/// to save and remove a project, so that they ask the user first.
void addMenus(const CommandTargets& targets);

/// The submenu of the recent projects.
std::shared_ptr<host::Bar> recentMenu(host::Host& host);

} // namespace workbench
