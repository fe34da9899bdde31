#pragma once
// One function for each kind of control.
#include "Apps/workbench/designer/form_picture.h"
#include <QPainter>

namespace workbench {

// ---- controls with text: text_controls.cpp ----
void drawLabel(QPainter& painter, const DrawnControl& control);
void drawField(QPainter& painter, const DrawnControl& control);
void drawButton(QPainter& painter, const DrawnControl& control);
void drawChoice(QPainter& painter, const DrawnControl& control);
void drawFrame(QPainter& painter, const DrawnControl& control);
void drawList(QPainter& painter, const DrawnControl& control);
void drawCombo(QPainter& painter, const DrawnControl& control);

// ---- pictures, shapes, tables and symbols: graphic_controls.cpp ----
void drawPicture(QPainter& painter, const DrawnControl& control);
void drawShape(QPainter& painter, const DrawnControl& control);
void drawLine(QPainter& painter, const DrawnControl& control);
void drawGrid(QPainter& painter, const DrawnControl& control);
void drawTabs(QPainter& painter, const DrawnControl& control);
/// A control without a look at run time: a clock for timers, else the first letters of the class.
void drawHidden(QPainter& painter, const DrawnControl& control);
void drawOther(QPainter& painter, const DrawnControl& control);

/// Fills the control's place, unless the control is transparent.
inline void fillBack(QPainter& painter, const DrawnControl& control) {
    if (!control.look.transparent) painter.fillRect(control.place, control.look.back);
}

} // namespace workbench
