#pragma once
// Draws one control as what it is, in the colours of its form.
#include "Apps/workbench/designer/form_picture.h"
#include <QPainter>

namespace workbench {

/// At its place, within its clip. What the user would not see when the program runs is dimmed.
void drawControl(QPainter& painter, const DrawnControl& control);

} // namespace workbench
