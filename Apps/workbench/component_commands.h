#pragma once
// The commands on one component: the one that the user works with.
#include "Apps/workbench/main_window.h"

namespace workbench {

/// The entry of the project explorer where that has the focus, else the code window's component, else the entry all the
/// same. Nothing where there is none.
vbide::Ref<vbide::VBComponent> currentComponent(MainWindow& window);

void viewCode(MainWindow& window);
/// Saves it, or the project where no component is meant; asks for a name where it has none.
void saveFile(host::Host& host, MainWindow& window);
void saveFileAs(MainWindow& window);
/// Asks about its changes first.
void removeComponent(MainWindow& window);
/// Its project begins with it.
void setAsStartUp(MainWindow& window);

} // namespace workbench
