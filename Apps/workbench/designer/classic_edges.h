#pragma once
// The edges, texts and small parts of the classic desktop, which forms are made of.
#include "Apps/workbench/designer/control_look.h"
#include <QPainter>

namespace workbench {

/// Draws the border inside the rectangle and gives what it leaves.
QRectF drawBorder(QPainter& painter, const QRectF& place, ControlBorder border);
/// A button's surface with its edge; gives what the edge leaves.
QRectF drawRaised(QPainter& painter, const QRectF& place, const QColor& surface);

/// Which way a small triangle points.
enum class Pointing { Up, Down, Left, Right };
void drawTriangle(QPainter& painter, const QRectF& within, Pointing pointing, const QColor& colour);
/// A button with a triangle, as scroll bars and combo boxes have.
void drawArrowButton(QPainter& painter, const QRectF& place, Pointing pointing);
/// `thumb` from 0 to 1; a negative one draws none.
void drawScrollBar(QPainter& painter, const QRectF& place, bool across, double thumb);
/// Draws the scroll bars of a field or list inside its border and gives what they leave.
QRectF drawBars(QPainter& painter, const QRectF& place, const ControlLook& look);

/// The text in the look's font and colour; of a disabled control embossed.
void drawCaption(QPainter& painter, const QRectF& place, const ControlLook& look, int flags, const QString& text);

/// The box of a check box, or the circle of an option.
inline constexpr double kCheckSize = 13;
void drawCheck(QPainter& painter, const QRectF& place, int value);
void drawOption(QPainter& painter, const QRectF& place, bool chosen);

inline constexpr double kBarWidth = 16;

} // namespace workbench
