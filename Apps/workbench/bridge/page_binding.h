#pragma once
#include "Add-in/platform/page_place.h"
#include "Apps/workbench/bridge/binder.h"
#include <QWidget>

namespace workbench {

/// Draws the pages of a place on top of each other, each with its own file in forms/.
void bindPagePlace(fernwick::PagePlace& control, QWidget& widget, Binding& binding);

} // namespace workbench
