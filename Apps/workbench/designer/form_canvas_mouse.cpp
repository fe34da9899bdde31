// What the mouse does on a form.
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/form_menu.h"
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace workbench {

namespace {

/// The mouse must move this far before something is dragged.
constexpr double kDragBegins = 3;

} // namespace

bool FormCanvas::event(QEvent* event) {
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

void FormCanvas::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const auto at = event->position();
    if (beginNew(at)) return;
    if (const auto grip = gripAt(at); grip != Grip::None) return beginDrag(at, grip);
    if (openMenu(at)) return;
    const auto* drawn = view_.picture().at(onForm(at));
    const auto control = drawn ? drawn->control : nullptr;
    view_.select(control);
    if (control) beginDrag(at, Grip::None);
}

/// With a tool selected, the mouse draws the place of a new control.
bool FormCanvas::beginNew(const QPointF& onWidget) {
    const auto tool = view_.callbacks().tool();
    if (tool.empty()) return false;
    view_.select(nullptr);
    const QRectF place(onGrid(onForm(onWidget), gridFrom({})), QSizeF());
    drag_ = Drag{onWidget, Grip::None, place, place, {}, false, tool};
    return true;
}

void FormCanvas::beginDrag(const QPointF& onWidget, Grip grip) {
    const auto* drawn = view_.drawnSelection();
    const auto place = selectedPlace();
    drag_ = Drag{
        onWidget, grip, place, place, drawn ? drawn->origin : QPointF(), drawn && drawn->look.kind == ControlKind::Line,
        {}};
}

void FormCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (!drag_) {
        const bool draws = !view_.callbacks().tool().empty();
        return setCursor(draws ? Qt::CrossCursor : cursorOf(gripAt(event->position())));
    }
    const auto by = event->position() - drag_->from;
    if (drag_->now == drag_->before && by.manhattanLength() < kDragBegins) return;
    drag_->now = drag_->tool.empty()
                     ? pulled(drag_->before, drag_->grip, by, gridFrom(drag_->origin), drag_->isLine)
                     : QRectF(drag_->before.topLeft(), onGrid(onForm(event->position()), gridFrom({}))).normalized();
    update();
    view_.callbacks().placeChanged();
}

void FormCanvas::mouseReleaseEvent(QMouseEvent*) {
    if (!drag_) return;
    const auto drag = *drag_;
    drag_.reset();
    update();
    if (!drag.tool.empty()) {
        view_.callbacks().toolUsed();
        view_.add(drag.tool, drag.now);
    } else if (drag.now != drag.before) {
        view_.place(drag.now);
    }
}

void FormCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || openMenu(event->position())) return;
    const auto* drawn = view_.picture().at(onForm(event->position()));
    view_.openCode(drawn ? drawn->control : nullptr);
}

bool FormCanvas::openMenu(const QPointF& onWidget) {
    return openMenuAt(view_, *this, onWidget, QPointF(kCanvasMargin, kCanvasMargin));
}

} // namespace workbench
