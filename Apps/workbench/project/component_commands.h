#pragma once
// The commands on one component: the one that the user works with.
#include "Apps/workbench/window/main_window.h"

namespace workbench {

/// Saves it, or the project where no component is meant; asks for a name where it has none.
void saveFile(host::Host& host, MainWindow& window);
void saveFileAs(MainWindow& window);
/// Asks about its changes first.
void removeComponent(MainWindow& window);
/// Its project begins with it.
void setAsStartUp(MainWindow& window);

} // namespace workbench
