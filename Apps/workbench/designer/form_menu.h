#pragma once
#include "Apps/workbench/designer/form_view.h"

namespace workbench {

/// Opens the menu of the form's menu bar at a place on the canvas and selects it. Each of its items leads to its code.
/// `corner` is the form's corner on the canvas. False if there is no menu.
bool openMenuAt(FormView& view, QWidget& canvas, const QPointF& place, const QPointF& corner);

} // namespace workbench
