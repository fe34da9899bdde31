#pragma once
// The context menus: commands of the menus that fit what was clicked.
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/code/code_windows.h"
#include "Apps/workbench/designer/design_desk.h"
#include "Apps/workbench/project/project_explorer.h"
#include "Host/model/host.h"

namespace workbench {

void addExplorerMenu(host::Host& host, ProjectExplorer& explorer, Run run);
/// The menu of each editor that is opened from now on.
void addEditorMenu(host::Host& host, CodeWindows& windows, Run run);

/// The menu of all form designers.
void addDesignerMenu(host::Host& host, DesignDesk& desk, QWidget& window, Run run);

} // namespace workbench
