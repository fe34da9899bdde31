// What the user does in the zoom window.
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/zoom/designer_image.h"
#include "Apps/workbench/zoom/message_words.h"
#include "Apps/workbench/zoom/virtual_keys.h"
#include "Apps/workbench/zoom/zoom_view.h"
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <cmath>

namespace workbench {

using namespace fernwick; // the names of messages

namespace {

constexpr unsigned kDoubleClick = 0x203, kContextMenu = 0x7B; // WM_LBUTTONDBLCLK, WM_CONTEXTMENU

} // namespace

// ---- the mouse ------------------------------------------------------------------------------------------------------

void ZoomView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        windows_.mouse().press(hwnd_, event->position(), event->globalPosition(), event->modifiers());
}

void ZoomView::mouseMoveEvent(QMouseEvent* event) {
    windows_.mouse().move(hwnd_, event->position(), event->globalPosition(), event->modifiers());
}

void ZoomView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        windows_.mouse().release(hwnd_, event->position(), event->globalPosition(), event->modifiers());
}

void ZoomView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) send(kDoubleClick, MK_LBUTTON, event->position());
}

void ZoomView::contextMenuEvent(QContextMenuEvent* event) { send(kContextMenu, hwnd_, QPointF(event->pos())); }

void ZoomView::enterEvent(QEnterEvent* event) {
    QWidget::enterEvent(event);
    windows_.procedures().send({hwnd_, WM_SETCURSOR, hwnd_, wordsOf(kInClientArea, int(WM_MOUSEMOVE))});
}

/// With Ctrl, changes the level.
void ZoomView::wheelEvent(QWheelEvent* event) {
    const auto angle = event->angleDelta();
    if (event->modifiers() & Qt::ControlModifier) {
        const int row = document_->Combo1.ListIndex() + (angle.y() > 0 ? 1 : -1);
        if (angle.y() != 0 && row >= 0 && row < document_->Combo1.ListCount())
            run_([&] { document_->Combo1.ListIndex(row); });
        return;
    }
    const bool sideways = event->modifiers() & Qt::ShiftModifier || vertical_->isHidden();
    scroll(sideways ? *horizontal_ : *vertical_, angle.y() != 0 ? angle.y() : angle.x());
}

void ZoomView::scroll(QScrollBar& bar, int angle) {
    constexpr int kAngleOfStep = 120, kPixelsOfStep = 40;
    const auto& model = &bar == horizontal_ ? document_->HScroll1 : document_->VScroll1;
    if (!bar.isHidden()) bar.setValue(model.Value() - angle * kPixelsOfStep * model.SmallChange() / kAngleOfStep);
}

// ---- messages that the add-in leaves to the document ----------------------------------------------------------------

std::intptr_t ZoomView::send(unsigned number, std::intptr_t wParam, const QPointF& at) {
    const auto place = wholePoint(at);
    return windows_.procedures().send({hwnd_, number, wParam, wordsOf(place.x, place.y)});
}

FormCanvas* ZoomView::canvas() const { return shown_ && shown_->image ? &shown_->image->canvas() : nullptr; }

std::optional<QPointF> ZoomView::onDesigner(const WindowMessage& message) const {
    const QPointF at(LoWord(message.lParam), HiWord(message.lParam));
    if (!shown_ || shown_->source.right == 0) return {};
    const double level = double(shown_->target.right - shown_->target.left) / shown_->source.right;
    return QPointF(std::nearbyint((at.x() - shown_->target.left) / level),
                   std::nearbyint((at.y() - shown_->target.top) / level));
}

std::intptr_t ZoomView::ownProcedure(const WindowMessage& message) noexcept {
    auto* const designer = canvas();
    const auto at = onDesigner(message);
    if (!designer || !at) return 0;
    if (message.number == kDoubleClick) designer->doubleClick(*at);
    if (message.number == kContextMenu)
        designer->contextMenu(*at, mapToGlobal(QPoint(LoWord(message.lParam), HiWord(message.lParam))));
    return 0;
}

// ---- the keyboard ---------------------------------------------------------------------------------------------------

bool ZoomView::key(unsigned number, const QKeyEvent& event) {
    windows_.mouse().keys(event.modifiers());
    const auto code = virtualKeyOf(event.key());
    constexpr std::intptr_t kOnce = 1;
    const bool isUsed = code != 0 && windows_.procedures().send({hwnd_, number, code, kOnce}) != 0;
    if (number == WM_KEYDOWN && event.key() == Qt::Key_Escape) windows_.mouse().lose();
    return isUsed;
}

/// A key that the designer does not use continues to the window's shortcuts.
void ZoomView::keyPressEvent(QKeyEvent* event) { event->setAccepted(key(WM_KEYDOWN, *event)); }

void ZoomView::keyReleaseEvent(QKeyEvent* event) { event->setAccepted(key(WM_KEYUP, *event)); }

bool ZoomView::focusNextPrevChild(bool next) {
    if (!hasFocus()) return QWidget::focusNextPrevChild(next);
    return key(WM_KEYDOWN, QKeyEvent(QEvent::KeyPress, next ? Qt::Key_Tab : Qt::Key_Backtab,
                                     next ? Qt::NoModifier : Qt::ShiftModifier));
}

/// Only a floating zoom window keeps the keys: it is the active window, which the designer is not in.
void ZoomView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    windows_.procedures().send({hwnd_, WM_SETFOCUS, 0, 0});
    lendFocus(true);
}

void ZoomView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    lendFocus(false);
}

void ZoomView::lendFocus(bool lent) {
    if (auto* const designer = canvas()) designer->lendFocus(lent);
}

} // namespace workbench
