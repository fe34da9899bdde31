#pragma once
// Draws grids and tab strips.
#include "Add-in/platform/grid.h"
#include "Add-in/platform/tab_strip.h"
#include "Apps/workbench/bridge/binder.h"
#include <QTabBar>
#include <QTreeWidget>

namespace workbench {

/// Rows of texts under the headings. The last column takes the rest of the width.
void bindGrid(fernwick::Grid& control, QTreeWidget& widget, Binding& binding);
void bindTabStrip(fernwick::TabStrip& control, QTabBar& widget, Binding& binding);

} // namespace workbench
