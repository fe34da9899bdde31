#pragma once
// The edges, texts and small parts that controls of the classic desktop consist of.
#include "Apps/workbench/drawing/control_look.h"
#include <QPainter>

namespace workbench {

/// Draws the border inside the rectangle and returns the rest.
QRectF drawBorder(QPainter& painter, const QRectF& place, ControlBorder border);
/// Draws a button's surface and edge and returns the rest.
QRectF drawRaised(QPainter& painter, const QRectF& place, const QColor& surface);

/// The direction of a small triangle.
enum class Pointing { Up, Down, Left, Right };
void drawTriangle(QPainter& painter, const QRectF& within, Pointing pointing, const QColor& colour);
/// Draws a button with a triangle, as in scroll bars and combo boxes.
void drawArrowButton(QPainter& painter, const QRectF& place, Pointing pointing);
/// `thumb` is the position from 0 to 1; negative for no thumb.
void drawScrollBar(QPainter& painter, const QRectF& place, bool across, double thumb);
/// Draws the scroll bars of a field or list inside its border and returns the rest.
QRectF drawBars(QPainter& painter, const QRectF& place, const ControlLook& look);

/// Draws text in the look's font and colour, embossed for a disabled control.
void drawCaption(QPainter& painter, const QRectF& place, const ControlLook& look, int flags, const QString& text);

/// The size of a check box's box and an option's circle.
inline constexpr double kCheckSize = 13;
void drawCheck(QPainter& painter, const QRectF& place, int value);
void drawOption(QPainter& painter, const QRectF& place, bool chosen);

inline constexpr double kBarWidth = 16;

} // namespace workbench
