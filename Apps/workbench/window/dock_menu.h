#pragma once
// The switches of docks and toolbars in the View menu.
#include "Apps/workbench/window/docks.h"
#include "Host/model/host.h"

namespace workbench {

/// Adds a switch for each dock, present and future. It shows the dock and gives it the focus; if the dock has the focus
/// already, it hides the dock.
void addDockSwitches(host::Host& host, Docks& docks);
/// Fills the submenu of the toolbars each time it is shown.
void addToolBarSwitches(host::Host& host);

} // namespace workbench
