#include "Apps/workbench/arrange/form_drag.h"
#include <utility>

namespace workbench {

namespace {

/// The mouse must move this far before something is dragged.
constexpr double kDragBegins = 3;

} // namespace

FormDrag::FormDrag(Kind kind, const QPointF& from, std::vector<QRectF> places, const SnapGrid& grid)
    : kind_(kind), from_(from), before_(std::move(places)), now_(before_), grid_(grid) {}

FormDrag FormDrag::moving(const QPointF& from, std::vector<QRectF> places, const SnapGrid& grid, bool isLine) {
    FormDrag drag(Kind::Move, from, std::move(places), grid);
    drag.isLine_ = isLine;
    return drag;
}

FormDrag FormDrag::sizing(const QPointF& from, Grip grip, const QRectF& place, const SnapGrid& grid, bool isLine) {
    FormDrag drag(Kind::Size, from, {place}, grid);
    drag.grip_ = grip;
    drag.isLine_ = isLine;
    return drag;
}

FormDrag FormDrag::drawing(const QPointF& from, const SnapGrid& grid, std::string tool) {
    FormDrag drag(Kind::Draw, from, {QRectF(onGrid(from, grid), QSizeF())}, grid);
    drag.tool_ = std::move(tool);
    return drag;
}

FormDrag FormDrag::framing(const QPointF& from) { return {Kind::Frame, from, {QRectF(from, QSizeF())}, {}}; }

void FormDrag::moveTo(const QPointF& at) {
    const auto by = at - from_;
    if (!hasChanged() && by.manhattanLength() < kDragBegins) return;
    switch (kind_) {
    case Kind::Move: return moveAll(by);
    case Kind::Size: now_.back() = pulled(before_.back(), grip_, by, grid_, isLine_); return;
    case Kind::Draw: now_.back() = QRectF(before_.back().topLeft(), onGrid(at, grid_)).normalized(); return;
    case Kind::Frame: now_.back() = QRectF(from_, at).normalized(); return;
    }
}

/// All move by the leader's steps on the grid.
void FormDrag::moveAll(const QPointF& by) {
    const auto from = before_.back().topLeft();
    const auto step = onGrid(from + by, grid_) - from;
    for (std::size_t i = 0; i < now_.size(); ++i) now_[i] = before_[i].translated(step);
}

} // namespace workbench
