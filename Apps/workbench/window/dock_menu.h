#pragma once
// The View menu's switches: a dock each, and a toolbar each.
#include "Host/model/host.h"

class QDockWidget;

namespace workbench {

class MainWindow;

/// A switch for each dock that stands and each that comes: shows it and gives it the keys, hides it when it has them.
void addDockSwitches(host::Host& host, MainWindow& window);
/// The popup with a switch for each toolbar, filled when it comes up.
void addToolBarSwitches(host::Host& host);

} // namespace workbench
