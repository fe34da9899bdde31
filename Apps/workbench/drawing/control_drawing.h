#pragma once
// Draws one control of a form.
#include "Apps/workbench/drawing/drawn_control.h"
#include <QPainter>

namespace workbench {

/// Draws the control in its place, within its clip. A control that is invisible at run time is dimmed.
void drawControl(QPainter& painter, const DrawnControl& control);

} // namespace workbench
