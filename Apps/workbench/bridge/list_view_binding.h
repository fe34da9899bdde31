#pragma once
#include "Add-in/platform/list_view.h"
#include "Apps/workbench/bridge/binder.h"
#include <QTreeWidget>

namespace workbench {

/// Rows with the icons of their files; sizes in the units of the user's language.
void bindListView(fernwick::ListView& control, QTreeWidget& widget, Binding& binding);

} // namespace workbench
