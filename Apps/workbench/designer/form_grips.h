#pragma once
// The grips of what is selected on a form, and what pulling them does.
#include <QCursor>
#include <QRectF>
#include <vector>

namespace workbench {

enum class Grip { None, TopLeft, Top, TopRight, Left, Right, BottomLeft, Bottom, BottomRight };

struct GripPlace {
    Grip grip = Grip::None;
    QPointF at; ///< its middle
};
inline constexpr double kGripSize = 6;

enum class GripsOf {
    Control, ///< eight round it
    Line,    ///< its two ends
    Form,    ///< right, bottom and their corner
    Fixed,   ///< as eight, but none can be pulled
};
/// Of a place; `what` says which there are.
std::vector<GripPlace> gripsOf(const QRectF& place, GripsOf what);

Qt::CursorShape cursorOf(Grip grip);

QPointF onGrid(const QPointF& point, const QPointF& origin);

/// The place when a grip (none: the place itself) is pulled by so much. What moves stands on the grid, whose corner is
/// `origin`; a place that was pulled through itself has no size. The ends of a line move freely.
QRectF pulled(const QRectF& place, Grip grip, const QPointF& by, const QPointF& origin, bool isLine);

} // namespace workbench
