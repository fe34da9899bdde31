#include "Apps/workbench/arrange/form_grips.h"
#include <cmath>

namespace workbench {

namespace {

double alongX(double value, const SnapGrid& grid) {
    return grid.origin.x() + std::round((value - grid.origin.x()) / grid.step) * grid.step;
}

double alongY(double value, const SnapGrid& grid) {
    return grid.origin.y() + std::round((value - grid.origin.y()) / grid.step) * grid.step;
}

bool isLeft(Grip grip) { return grip == Grip::TopLeft || grip == Grip::Left || grip == Grip::BottomLeft; }
bool isRight(Grip grip) { return grip == Grip::TopRight || grip == Grip::Right || grip == Grip::BottomRight; }
bool isTop(Grip grip) { return grip == Grip::TopLeft || grip == Grip::Top || grip == Grip::TopRight; }
bool isBottom(Grip grip) { return grip == Grip::BottomLeft || grip == Grip::Bottom || grip == Grip::BottomRight; }

} // namespace

QPointF onGrid(const QPointF& point, const SnapGrid& grid) {
    return {alongX(point.x(), grid), alongY(point.y(), grid)};
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

QRectF pulled(const QRectF& place, Grip grip, const QPointF& by, const SnapGrid& grid, bool isLine) {
    auto now = place;
    if (isLeft(grip)) now.setLeft(alongX(place.left() + by.x(), grid));
    if (isRight(grip)) now.setRight(alongX(place.right() + by.x(), grid));
    if (isTop(grip)) now.setTop(alongY(place.top() + by.y(), grid));
    if (isBottom(grip)) now.setBottom(alongY(place.bottom() + by.y(), grid));
    if (isLine) return now;
    if (now.width() < 0) isLeft(grip) ? now.setLeft(now.right()) : now.setRight(now.left());
    if (now.height() < 0) isTop(grip) ? now.setTop(now.bottom()) : now.setBottom(now.top());
    return now;
}

} // namespace workbench
