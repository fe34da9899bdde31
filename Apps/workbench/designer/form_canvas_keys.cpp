// What the keyboard does on a form.
#include "Apps/workbench/designer/form_canvas.h"
#include <QKeyEvent>
#include <algorithm>

namespace workbench {

namespace {

QPointF directionOf(int key) {
    switch (key) {
    case Qt::Key_Left: return {-1, 0};
    case Qt::Key_Right: return {1, 0};
    case Qt::Key_Up: return {0, -1};
    case Qt::Key_Down: return {0, 1};
    default: return {};
    }
}

QRectF grown(QRectF place, const QPointF& by) {
    place.setBottomRight(place.bottomRight() + by);
    return place;
}

/// Returns the place unchanged where it cannot have the new size.
QRectF grown(const DrawnControl& drawn, const QPointF& by) {
    const auto place = grown(drawn.place, by);
    const bool fits = drawn.look.kind == ControlKind::Line || (place.width() >= 0 && place.height() >= 0);
    return fits && drawn.look.kind != ControlKind::Hidden ? place : drawn.place;
}

} // namespace

bool FormCanvas::key(int key, Qt::KeyboardModifiers modifiers) {
    if (tabOrder_ && key != Qt::Key_Escape) return false; // the selection is not shown
    if (const auto direction = directionOf(key); !direction.isNull()) return pressArrow(direction, modifiers);
    switch (key) {
    case Qt::Key_Delete: view_.removeSelected(); return true;
    case Qt::Key_Escape: escape(); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: view_.openCode(); return true;
    case Qt::Key_Tab: return focusNextPrevChild(!(modifiers & Qt::ShiftModifier));
    case Qt::Key_Backtab: return focusNextPrevChild(false);
    default: return false;
    }
}

bool FormCanvas::pressArrow(const QPointF& direction, Qt::KeyboardModifiers modifiers) {
    const auto step = direction * view_.callbacks().grid().step();
    if (modifiers & Qt::ControlModifier)
        nudge(step, false);
    else if (modifiers & Qt::ShiftModifier)
        nudge(step, true);
    else
        view_.selectBeside(direction);
    return true;
}

void FormCanvas::escape() {
    view_.callbacks().toolUsed();
    if (drag_) return cancelDrag();
    if (tabOrder_) return switchTabOrder();
    view_.select(nullptr);
}

void FormCanvas::nudge(const QPointF& step, bool size) {
    if (drag_ || view_.picture().isLocked) return;
    const auto all = view_.drawnSelections();
    if (all.empty()) return nudgeForm(step, size);
    std::vector<QRectF> places;
    for (const auto* drawn : all) places.push_back(size ? grown(*drawn, step) : drawn->place.translated(step));
    view_.place(size ? "Size" : "Move", places);
}

/// A form has a size but no position here; a menu has neither.
void FormCanvas::nudgeForm(const QPointF& step, bool size) {
    if (view_.selected() || !size) return;
    const auto place = grown(selectedPlace(), step);
    if (place.width() >= 0 && place.height() >= 0) view_.place("Size", {place});
}

void FormCanvas::keyPressEvent(QKeyEvent* event) {
    if (!key(event->key(), event->modifiers())) QWidget::keyPressEvent(event);
}

/// The Tab key selects the next control.
bool FormCanvas::focusNextPrevChild(bool next) {
    if (view_.picture().controls.empty()) return QWidget::focusNextPrevChild(next);
    view_.selectNext(next ? 1 : -1);
    return true;
}

void FormCanvas::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    redraw();
    view_.callbacks().focused();
}

/// A menu or a box that opens gets the release of the mouse.
void FormCanvas::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    cancelDrag();
    redraw();
}

} // namespace workbench
