#include "Apps/workbench/designer/form_grips.h"
#include "Apps/workbench/designer/form_painter.h"
#include <cmath>

namespace workbench {

namespace {

double onGrid(double value, double origin) { return origin + std::round((value - origin) / kGridStep) * kGridStep; }

bool isLeft(Grip grip) { return grip == Grip::TopLeft || grip == Grip::Left || grip == Grip::BottomLeft; }
bool isRight(Grip grip) { return grip == Grip::TopRight || grip == Grip::Right || grip == Grip::BottomRight; }
bool isTop(Grip grip) { return grip == Grip::TopLeft || grip == Grip::Top || grip == Grip::TopRight; }
bool isBottom(Grip grip) { return grip == Grip::BottomLeft || grip == Grip::Bottom || grip == Grip::BottomRight; }

} // namespace

QPointF onGrid(const QPointF& point, const QPointF& origin) {
    return {onGrid(point.x(), origin.x()), onGrid(point.y(), origin.y())};
}

std::vector<GripPlace> gripsOf(const QRectF& place, GripsOf what) {
    const auto c = place.center();
    const GripPlace right{Grip::Right, {place.right(), c.y()}}, bottom{Grip::Bottom, {c.x(), place.bottom()}},
        corner{Grip::BottomRight, place.bottomRight()};
    if (what == GripsOf::Line) return {{Grip::TopLeft, place.topLeft()}, corner};
    if (what == GripsOf::Form) return {right, bottom, corner};
    return {{Grip::TopLeft, place.topLeft()},
            {Grip::Top, {c.x(), place.top()}},
            {Grip::TopRight, place.topRight()},
            {Grip::Left, {place.left(), c.y()}},
            right,
            {Grip::BottomLeft, place.bottomLeft()},
            bottom,
            corner};
}

Qt::CursorShape cursorOf(Grip grip) {
    switch (grip) {
    case Grip::TopLeft:
    case Grip::BottomRight: return Qt::SizeFDiagCursor;
    case Grip::TopRight:
    case Grip::BottomLeft: return Qt::SizeBDiagCursor;
    case Grip::Left:
    case Grip::Right: return Qt::SizeHorCursor;
    case Grip::Top:
    case Grip::Bottom: return Qt::SizeVerCursor;
    case Grip::None: break;
    }
    return Qt::ArrowCursor;
}

QRectF pulled(const QRectF& place, Grip grip, const QPointF& by, const QPointF& origin, bool isLine) {
    auto now = place;
    if (grip == Grip::None) {
        now.moveTopLeft(onGrid(place.topLeft() + by, origin));
        return now;
    }
    if (isLeft(grip)) now.setLeft(onGrid(place.left() + by.x(), origin.x()));
    if (isRight(grip)) now.setRight(onGrid(place.right() + by.x(), origin.x()));
    if (isTop(grip)) now.setTop(onGrid(place.top() + by.y(), origin.y()));
    if (isBottom(grip)) now.setBottom(onGrid(place.bottom() + by.y(), origin.y()));
    if (isLine) return now;
    if (now.width() < 0) isLeft(grip) ? now.setLeft(now.right()) : now.setRight(now.left());
    if (now.height() < 0) isTop(grip) ? now.setTop(now.bottom()) : now.setBottom(now.top());
    return now;
}

} // namespace workbench
