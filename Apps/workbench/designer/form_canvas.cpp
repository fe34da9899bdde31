#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/form_painter.h"
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

const QColor kGripColour("#0a246a");

QPointF directionOf(int key) {
    switch (key) {
    case Qt::Key_Left: return {-1, 0};
    case Qt::Key_Right: return {1, 0};
    case Qt::Key_Up: return {0, -1};
    case Qt::Key_Down: return {0, 1};
    default: return {};
    }
}

} // namespace

FormCanvas::FormCanvas(FormView& view) : view_(view) {
    setObjectName("formCanvas");
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName("Form designer");
}

void FormCanvas::formChanged() {
    drag_.reset();
    resize(sizeHint());
    update();
}

QSize FormCanvas::sizeHint() const {
    const auto whole = wholeSize(view_.picture());
    return (whole + QSizeF(2 * kCanvasMargin, 2 * kCanvasMargin)).toSize();
}

// ---- places ---------------------------------------------------------------------------------------------------------

QPointF FormCanvas::innerCorner() const {
    const auto border = view_.picture().border();
    return {kCanvasMargin + border.left(), kCanvasMargin + border.top()};
}

QPointF FormCanvas::onForm(const QPointF& onWidget) const { return onWidget - innerCorner(); }

QRectF FormCanvas::onCanvas(const QRectF& place) const { return place.translated(innerCorner()); }

QRectF FormCanvas::shownPlace() const { return drag_ && drag_->tool.empty() ? drag_->now : selectedPlace(); }

SnapGrid FormCanvas::gridFrom(const QPointF& origin) const { return {origin, view_.callbacks().grid().step()}; }

QRectF FormCanvas::selectedPlace() const {
    const auto* drawn = view_.drawnSelection();
    return drawn ? drawn->place : QRectF({}, view_.picture().inner);
}

std::vector<GripPlace> FormCanvas::grips() const {
    const auto place = onCanvas(selectedPlace());
    const auto* drawn = view_.drawnSelection();
    if (!drawn) {
        // a selected menu has no place
        if (view_.selected()) return {};
        const auto frame = view_.picture().frame;
        return gripsOf(place.adjusted(0, 0, frame.right() + kGripSize / 2, frame.bottom() + kGripSize / 2),
                       GripsOf::Form);
    }
    if (drawn->look.kind == ControlKind::Line) return gripsOf(place, GripsOf::Line);
    return gripsOf(place, drawn->look.kind == ControlKind::Hidden ? GripsOf::Fixed : GripsOf::Control);
}

Grip FormCanvas::gripAt(const QPointF& onWidget) const {
    const auto* drawn = view_.drawnSelection();
    if (drawn && drawn->look.kind == ControlKind::Hidden) return Grip::None;
    for (const auto& grip : grips()) {
        const auto apart = onWidget - grip.at;
        if (std::max(std::abs(apart.x()), std::abs(apart.y())) <= kGripSize / 2 + 1) return grip.grip;
    }
    return Grip::None;
}

// ---- drawing --------------------------------------------------------------------------------------------------------

void FormCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.save();
    painter.translate(kCanvasMargin, kCanvasMargin);
    paintForm(painter, view_.picture(), view_.callbacks().grid());
    painter.restore();
    drawSelection(painter);
}

void FormCanvas::drawSelection(QPainter& painter) const {
    if (drag_ && drag_->now != drag_->before) {
        painter.setPen(QPen(Qt::darkGray, 2));
        painter.setBrush(Qt::NoBrush);
        const auto place = onCanvas(drag_->now);
        if (drag_->isLine) return painter.drawLine(place.topLeft(), place.bottomRight());
        return painter.drawRect(place);
    }
    painter.setPen(Qt::white);
    painter.setBrush(hasFocus() ? kGripColour : QColor(Qt::gray));
    for (const auto& grip : grips())
        painter.drawRect(QRectF(grip.at - QPointF(kGripSize, kGripSize) / 2, QSizeF(kGripSize, kGripSize)));
}

// ---- the keyboard ---------------------------------------------------------------------------------------------------

void FormCanvas::keyPressEvent(QKeyEvent* event) {
    const auto direction = directionOf(event->key());
    if (!direction.isNull()) {
        const auto step = direction * view_.callbacks().grid().step();
        if (event->modifiers() & Qt::ControlModifier) return nudge(step, false);
        if (event->modifiers() & Qt::ShiftModifier) return nudge(step, true);
        return view_.selectBeside(direction);
    }
    switch (event->key()) {
    case Qt::Key_Delete: return view_.removeSelected();
    case Qt::Key_Escape:
        view_.callbacks().toolUsed();
        if (drag_) return formChanged();
        return view_.select(nullptr);
    case Qt::Key_Return:
    case Qt::Key_Enter: return view_.openCode();
    default: QWidget::keyPressEvent(event);
    }
}

void FormCanvas::nudge(const QPointF& step, bool size) {
    auto place = selectedPlace();
    const auto* drawn = view_.drawnSelection();
    const bool fixed = drawn && drawn->look.kind == ControlKind::Hidden;
    if ((!drawn && (view_.selected() || !size)) || (fixed && size)) return;
    if (!size) return view_.place(place.translated(step));
    place.setRight(place.right() + step.x());
    place.setBottom(place.bottom() + step.y());
    const bool isLine = drawn && drawn->look.kind == ControlKind::Line;
    if (isLine || (place.width() >= 0 && place.height() >= 0)) view_.place(place);
}

/// The Tab key selects the next control.
bool FormCanvas::focusNextPrevChild(bool next) {
    if (view_.picture().controls.empty()) return QWidget::focusNextPrevChild(next);
    view_.selectNext(next ? 1 : -1);
    return true;
}

void FormCanvas::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
    view_.callbacks().focused();
}

void FormCanvas::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

} // namespace workbench
