#pragma once
// The View menu's commands for docks and toolbars.
#include "Apps/workbench/window/docks.h"
#include "Host/model/host.h"

namespace workbench {

/// Adds a command for each dock, present and future, before the toolbars. It shows the dock and gives it the focus.
void addDockCommands(host::Host& host, Docks& docks);
/// Fills the submenu of the toolbars each time it is shown.
void addToolBarSwitches(host::Host& host);

} // namespace workbench
