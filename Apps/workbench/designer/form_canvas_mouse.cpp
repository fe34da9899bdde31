// What the mouse does on a form.
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/form_menu.h"
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <utility>

namespace workbench {

bool FormCanvas::event(QEvent* event) {
    // the release of the mouse goes to another window
    if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::Hide) cancelDrag();
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    QToolTip::showText(help.globalPos(), tipAt(help.pos()), this);
    return true;
}

QString FormCanvas::tipAt(const QPointF& onWidget) const {
    const auto* drawn = view_.picture().at(onForm(onWidget));
    const bool isSymbol = drawn && (drawn->look.kind == ControlKind::Other || drawn->look.kind == ControlKind::Hidden);
    return isSymbol ? QString("%1 (%2)").arg(drawn->name, qt(drawn->control->ProgId())) : QString();
}

// ---- pressing -------------------------------------------------------------------------------------------------------

void FormCanvas::press(const QPointF& at, Qt::KeyboardModifiers modifiers) {
    if (pressInTabOrder(at) || beginNew(at) || beginSize(at) || openMenu(at)) return;
    if (const auto control = controlAt(at)) return pressControl(control, at, modifiers);
    const bool extends = modifiers & (Qt::ShiftModifier | Qt::ControlModifier);
    if (!extends) view_.select(nullptr);
    beginFrame(at, nullptr, extends);
}

/// With the Ctrl key, a drag from a container selects in it.
void FormCanvas::pressControl(const vbide::Ref<vbide::VBControl>& control, const QPointF& at,
                              Qt::KeyboardModifiers modifiers) {
    if ((modifiers & Qt::ControlModifier) && isContainer(control->ProgId())) return beginFrame(at, control, true);
    if (modifiers & (Qt::ShiftModifier | Qt::ControlModifier))
        view_.selectAlso(control);
    else
        view_.lead(control);
    if (view_.isSelected(control)) beginMove(at);
}

void FormCanvas::switchTabOrder() {
    cancelDrag();
    if (tabOrder_)
        tabOrder_.reset();
    else
        tabOrder_.emplace(view_.picture());
    redraw();
    view_.callbacks().formChanged();
}

bool FormCanvas::pressInTabOrder(const QPointF& onWidget) {
    if (!tabOrder_) return false;
    const auto control = controlAt(onWidget);
    const auto changes =
        control ? tabOrder_->click(control) : std::vector<std::pair<FormView::Control, DesignChange>>();
    view_.change("Change Tab Order", [changes] {
        for (const auto& [one, change] : changes) setAll(one->Properties(), {change});
    });
    return true;
}

/// With a tool selected, the mouse draws the place of a new control.
bool FormCanvas::beginNew(const QPointF& onWidget) {
    const auto tool = view_.callbacks().tool();
    if (tool.empty()) return false;
    view_.select(nullptr);
    drag_ = FormDrag::drawing(onForm(onWidget), gridFrom({}), tool);
    return true;
}

bool FormCanvas::beginSize(const QPointF& onWidget) {
    const auto grip = gripAt(onWidget);
    if (grip == Grip::None) return false;
    const auto* drawn = view_.drawnSelection();
    const bool isLine = drawn && drawn->look.kind == ControlKind::Line;
    drag_ =
        FormDrag::sizing(onForm(onWidget), grip, selectedPlace(), gridFrom(drawn ? drawn->origin : QPointF()), isLine);
    return true;
}

void FormCanvas::beginMove(const QPointF& onWidget) {
    const auto all = view_.drawnSelections();
    if (view_.picture().isLocked || all.empty()) return;
    std::vector<QRectF> places;
    for (const auto* drawn : all) places.push_back(drawn->place);
    drag_ = FormDrag::moving(onForm(onWidget), places, gridFrom(all.back()->origin),
                             all.back()->look.kind == ControlKind::Line && all.size() == 1);
}

void FormCanvas::beginFrame(const QPointF& onWidget, const vbide::Ref<vbide::VBControl>& around, bool extends) {
    framed_ = around;
    frameExtends_ = extends;
    drag_ = FormDrag::framing(onForm(onWidget));
}

// ---- dragging -------------------------------------------------------------------------------------------------------

void FormCanvas::moveTo(const QPointF& at) {
    if (!drag_) return setCursor(cursorAt(at));
    const auto before = drag_->places();
    drag_->moveTo(onForm(at));
    if (drag_->places() == before) return;
    redraw();
    view_.callbacks().placeChanged();
}

void FormCanvas::release(const QPointF& at) {
    if (!drag_) return;
    moveTo(at);
    const auto drag = *std::exchange(drag_, std::nullopt);
    redraw();
    finish(drag);
}

void FormCanvas::cancelDrag() {
    if (!drag_) return;
    drag_.reset();
    redraw();
    view_.callbacks().placeChanged();
}

void FormCanvas::finish(const FormDrag& drag) {
    switch (drag.kind()) {
    case FormDrag::Kind::Frame: return finishFrame(drag);
    case FormDrag::Kind::Draw: view_.callbacks().toolUsed(); return view_.add(drag.tool(), drag.place());
    default:
        if (drag.hasChanged()) view_.place(drag.kind() == FormDrag::Kind::Size ? "Size" : "Move", drag.places());
    }
}

/// A click with the Ctrl key on a container has no frame.
void FormCanvas::finishFrame(const FormDrag& drag) {
    const auto around = std::exchange(framed_, nullptr);
    if (drag.hasChanged()) return view_.selectTouched(drag.place(), around, frameExtends_);
    if (around) view_.selectAlso(around);
}

// ---- other buttons --------------------------------------------------------------------------------------------------

void FormCanvas::doubleClick(const QPointF& at) {
    if (pressInTabOrder(at) || openMenu(at)) return;
    view_.openCode(controlAt(at));
}

void FormCanvas::contextMenu(const QPointF& at, const QPoint& onScreen) {
    cancelDrag();
    const auto control = controlAt(at);
    if (!control || !view_.isSelected(control)) view_.select(control);
    view_.callbacks().menu(onScreen);
}

bool FormCanvas::openMenu(const QPointF& onWidget) {
    return openMenuAt(view_, *this, onWidget, QPointF(kCanvasMargin, kCanvasMargin));
}

// ---- Qt's events ----------------------------------------------------------------------------------------------------

void FormCanvas::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return cancelDrag();
    press(event->position(), event->modifiers());
}

void FormCanvas::mouseMoveEvent(QMouseEvent* event) { moveTo(event->position()); }

void FormCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) release(event->position());
}

void FormCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) doubleClick(event->position());
}

/// Opened by a key, the menu appears at the selection.
void FormCanvas::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Mouse) return contextMenu(event->pos(), event->globalPos());
    const auto at = onCanvas(selectedPlace()).normalized().center().toPoint();
    view_.callbacks().menu(mapToGlobal(at));
}

} // namespace workbench
