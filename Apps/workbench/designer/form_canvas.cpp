#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/device_screen.h"
#include "Apps/workbench/designer/form_painter.h"
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <utility>

namespace workbench {

namespace {

const QColor kGripColour("#0a246a");

QRectF squareAt(const QPointF& centre) {
    return {centre - QPointF(kGripSize, kGripSize) / 2, QSizeF(kGripSize, kGripSize)};
}

bool hasNoSize(const DrawnControl& drawn) { return drawn.look.kind == ControlKind::Hidden; }

bool isLine(const DrawnControl& drawn) { return drawn.look.kind == ControlKind::Line; }

} // namespace

FormCanvas::FormCanvas(FormView& view) : view_(view) {
    setObjectName("formCanvas");
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName("Form designer");
}

void FormCanvas::formChanged() {
    drag_.reset();
    if (tabOrder_) tabOrder_->follow(view_.picture());
    resize(sizeHint());
    redraw();
}

void FormCanvas::redraw() {
    update();
    contentChanged.raise();
}

void FormCanvas::lendFocus(bool lent) {
    if (std::exchange(isFocusLent_, lent) != lent) redraw();
}

QSize FormCanvas::sizeHint() const {
    const QRectF whole(QPointF(kCanvasMargin, kCanvasMargin), wholeSize(view_.picture()));
    const auto shown = whole.united(deviceScreen());
    return QSizeF(shown.right() + kCanvasMargin, shown.bottom() + kCanvasMargin).toSize();
}

// ---- places ---------------------------------------------------------------------------------------------------------

QPointF FormCanvas::innerCorner() const {
    const auto border = view_.picture().border();
    return {kCanvasMargin + border.left(), kCanvasMargin + border.top()};
}

/// Around the form's inner rectangle; empty for none.
QRectF FormCanvas::deviceScreen() const {
    const auto& size = view_.deviceScreen();
    return size.isEmpty() ? QRectF() : QRectF(innerCorner(), size);
}

QPointF FormCanvas::onForm(const QPointF& onWidget) const { return onWidget - innerCorner(); }

QRectF FormCanvas::onCanvas(const QRectF& place) const { return place.translated(innerCorner()); }

QRectF FormCanvas::shownPlace() const {
    const bool changes = drag_ && (drag_->kind() == FormDrag::Kind::Move || drag_->kind() == FormDrag::Kind::Size);
    return changes ? drag_->place() : selectedPlace();
}

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
    if (isLine(*drawn)) return gripsOf(place, GripsOf::Line);
    return gripsOf(place, hasNoSize(*drawn) ? GripsOf::Fixed : GripsOf::Control);
}

Grip FormCanvas::gripAt(const QPointF& onWidget) const {
    const auto* drawn = view_.drawnSelection();
    if (tabOrder_ || view_.picture().isLocked || (drawn && hasNoSize(*drawn))) return Grip::None;
    for (const auto& grip : grips()) {
        const auto apart = onWidget - grip.at;
        if (std::max(std::abs(apart.x()), std::abs(apart.y())) <= kGripSize / 2 + 1) return grip.grip;
    }
    return Grip::None;
}

std::optional<int> FormCanvas::gripNumberAt(const QPointF& at) const {
    const auto grip = gripAt(at);
    return grip == Grip::None ? std::nullopt : std::optional(numberOf(grip));
}

QPointF FormCanvas::gripPlace(int number) const {
    for (const auto& grip : grips())
        if (numberOf(grip.grip) == number) return grip.at;
    return {};
}

Qt::CursorShape FormCanvas::gripCursor(int number) { return cursorOf(gripOf(number)); }

Qt::CursorShape FormCanvas::surfaceCursor() const {
    return view_.callbacks().tool().empty() ? Qt::ArrowCursor : Qt::CrossCursor;
}

vbide::Ref<vbide::VBControl> FormCanvas::controlAt(const QPointF& at) const {
    const auto* drawn = view_.picture().at(onForm(at));
    return drawn ? drawn->control : nullptr;
}

Qt::CursorShape FormCanvas::cursorAt(const QPointF& at) const {
    return view_.callbacks().tool().empty() ? cursorOf(gripAt(at)) : Qt::CrossCursor;
}

// ---- drawing --------------------------------------------------------------------------------------------------------

void FormCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    draw(painter);
}

void FormCanvas::draw(QPainter& painter) const {
    painter.save();
    painter.translate(kCanvasMargin, kCanvasMargin);
    paintForm(painter, view_.picture(), view_.callbacks().grid());
    painter.restore();
    drawDeviceScreen(painter);
    if (!tabOrder_) return drawSelection(painter);
    painter.translate(innerCorner());
    tabOrder_->paint(painter, view_.picture());
}

/// Title and menus are above the screen and stay as they are.
void FormCanvas::drawDeviceScreen(QPainter& painter) const {
    const auto screen = deviceScreen();
    if (screen.isEmpty()) return;
    const auto& form = view_.picture();
    QPainterPath outside;
    outside.addRect(rect());
    QPainterPath head;
    head.addRect(QRectF(kCanvasMargin, kCanvasMargin, wholeSize(form).width(), form.border().top()));
    painter.save();
    painter.setClipPath(outside - head, Qt::IntersectClip);
    paintDeviceScreen(painter, screen);
    painter.restore();
}

void FormCanvas::drawSelection(QPainter& painter) const {
    const bool changes = drag_ && drag_->hasChanged();
    if (!changes || drag_->kind() == FormDrag::Kind::Frame) drawGrips(painter);
    if (changes) drawOutlines(painter);
}

void FormCanvas::drawOutlines(QPainter& painter) const {
    painter.setBrush(Qt::NoBrush);
    if (drag_->kind() == FormDrag::Kind::Frame) return drawFrame(painter);
    painter.setPen(QPen(Qt::darkGray, 2));
    for (const auto& place : drag_->places()) {
        const auto shown = onCanvas(place);
        drag_->isLine() ? painter.drawLine(shown.topLeft(), shown.bottomRight()) : painter.drawRect(shown.normalized());
    }
}

/// White below the dashes, which the dots of the grid would hide.
void FormCanvas::drawFrame(QPainter& painter) const {
    for (const auto& pen : {QPen(Qt::white, 1), QPen(kGripColour, 1, Qt::DashLine)}) {
        painter.setPen(pen);
        painter.drawRect(onCanvas(drag_->place()));
    }
}

/// Only the leader's grips can be pulled. Those of the others, and those of a locked form, are hollow.
void FormCanvas::drawGrips(QPainter& painter) const {
    const auto colour = hasFocus() || isFocusLent_ ? kGripColour : QColor(Qt::gray);
    painter.setPen(colour);
    painter.setBrush(Qt::white);
    for (const auto* drawn : view_.drawnBesideLeader())
        for (const auto& grip : gripsOf(onCanvas(drawn->place), isLine(*drawn) ? GripsOf::Line : GripsOf::Fixed))
            painter.drawRect(squareAt(grip.at));
    if (!view_.picture().isLocked) {
        painter.setPen(Qt::white);
        painter.setBrush(colour);
    }
    for (const auto& grip : grips()) painter.drawRect(squareAt(grip.at));
}

} // namespace workbench
