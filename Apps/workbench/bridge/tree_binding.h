#pragma once
#include "Add-in/platform/tree_view.h"
#include "Apps/workbench/bridge/binder.h"
#include <QTreeWidget>

namespace workbench {

void bindTreeView(fernwick::TreeView& control, QTreeWidget& widget, Binding& binding);

} // namespace workbench
