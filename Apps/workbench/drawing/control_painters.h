#pragma once
// One function for each kind of control. drawControl restores the painter after each.
#include "Apps/workbench/drawing/drawn_control.h"
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
/// A control without a look at run time: a clock for timers, else the first letters of the class.
void drawHidden(QPainter& painter, const DrawnControl& control);
void drawOther(QPainter& painter, const DrawnControl& control);

void drawUserControl(QPainter& painter, const DrawnControl& control);

// ---- tab_controls.cpp ----
void drawTabs(QPainter& painter, const DrawnControl& control);
void drawTabbedBox(QPainter& painter, const DrawnControl& control);

// ---- controls of several parts: common_controls.cpp ----
void drawColumns(QPainter& painter, const DrawnControl& control);
void drawTree(QPainter& painter, const DrawnControl& control);
void drawToolBar(QPainter& painter, const DrawnControl& control);
void drawStatusBar(QPainter& painter, const DrawnControl& control);
void drawProgress(QPainter& painter, const DrawnControl& control);
void drawSlider(QPainter& painter, const DrawnControl& control);
void drawDateBox(QPainter& painter, const DrawnControl& control);
void drawUpDown(QPainter& painter, const DrawnControl& control);
void drawDataBar(QPainter& painter, const DrawnControl& control);

/// Fills the control's place, unless the control is transparent.
inline void fillBack(QPainter& painter, const DrawnControl& control) {
    if (!control.look.transparent) painter.fillRect(control.place, control.look.back);
}

} // namespace workbench
