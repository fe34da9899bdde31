#pragma once
// The grips of the selection on a form, and the effect of dragging them.
#include <QCursor>
#include <QRectF>
#include <vector>

namespace workbench {

enum class Grip { None, TopLeft, Top, TopRight, Left, Right, BottomLeft, Bottom, BottomRight };

/// Grips have fixed numbers from 0 to 7.
inline int numberOf(Grip grip) { return int(grip) - 1; }
inline Grip gripOf(int number) { return Grip(number + 1); }

struct GripPlace {
    Grip grip = Grip::None;
    QPointF at; ///< its centre
};
inline constexpr double kGripSize = 6;

enum class GripsOf {
    Control, ///< eight around it
    Line,    ///< its two ends
    Form,    ///< right, bottom and their corner
    Fixed,   ///< eight, none of which can be dragged
};
/// Returns the grips around a place.
std::vector<GripPlace> gripsOf(const QRectF& place, GripsOf what);

Qt::CursorShape cursorOf(Grip grip);

/// The lines that moving edges snap to, in pixels.
struct SnapGrid {
    QPointF origin;
    int step = 1;
};

QPointF onGrid(const QPointF& point, const SnapGrid& grid);

/// Returns the place after a grip was dragged by `by`. Edges that move snap to the grid. A size does not become negative,
/// except for lines.
QRectF pulled(const QRectF& place, Grip grip, const QPointF& by, const SnapGrid& grid, bool isLine);

} // namespace workbench
