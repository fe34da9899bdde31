#include "Apps/workbench/zoom/mouse_route.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/zoom/message_words.h"
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <utility>

namespace workbench {

using fernwick::Hwnd;
using fernwick::WindowPoint;

namespace {

bool takesMouse(QObject& shown) {
    const auto* const widget = qobject_cast<QWidget*>(&shown);
    return widget && widget->isWindow() && (widget->windowType() == Qt::Popup || widget->isModal());
}

} // namespace

/// What was posted comes before the next event of the mouse.
void MouseRoute::at(const QPointF& onScreen, Qt::KeyboardModifiers keys) {
    deliverPosted();
    cursor_ = wholePoint(onScreen);
    keys_ = keys;
}

void MouseRoute::press(Hwnd document, const QPointF& at, const QPointF& onScreen, Qt::KeyboardModifiers keys) {
    if (captured_) return; // another button
    this->at(onScreen, keys);
    windows_.procedures.send({document, fernwick::WM_MOUSEACTIVATE, windows_.numbers.main(),
                              wordsOf(kInClientArea, int(fernwick::WM_LBUTTONDOWN))});
    pressing_ = true;
    lost_ = false;
    toDocument(document, fernwick::WM_LBUTTONDOWN, at);
    pressing_ = false;
    if (std::exchange(lost_, false)) lose();
}

void MouseRoute::move(Hwnd document, const QPointF& at, const QPointF& onScreen, Qt::KeyboardModifiers keys) {
    this->at(onScreen, keys);
    captured_ ? toCaptured(fernwick::WM_MOUSEMOVE) : toDocument(document, fernwick::WM_MOUSEMOVE, at);
}

void MouseRoute::release(Hwnd document, const QPointF& at, const QPointF& onScreen, Qt::KeyboardModifiers keys) {
    this->at(onScreen, keys);
    if (!captured_) return toDocument(document, fernwick::WM_LBUTTONUP, at);
    toCaptured(fernwick::WM_LBUTTONUP);
    cancelDrag(); // a release at a place beyond the limits of messages does not arrive
    endCapture();
}

void MouseRoute::toDocument(Hwnd document, unsigned number, const QPointF& at) {
    const auto place = wholePoint(at);
    windows_.procedures.dispatch(
        {document, number, mouseKeys(keys_, number != fernwick::WM_LBUTTONUP && pressing_), wordsOf(place.x, place.y)});
}

void MouseRoute::toCaptured(unsigned number) {
    const auto corner = windows_.toScreen(captured_, {0, 0});
    windows_.procedures.dispatch({captured_, number, mouseKeys(keys_, number == fernwick::WM_MOUSEMOVE),
                                  wordsOf(cursor_.x - corner.x, cursor_.y - corner.y)});
}

void MouseRoute::capture(Hwnd window) {
    captured_ = window;
    qApp->installEventFilter(this);
}

void MouseRoute::endCapture() {
    captured_ = 0;
    qApp->removeEventFilter(this);
}

void MouseRoute::cancelDrag() {
    if (const auto* designer = windows_.numbers.find(captured_).designer) designer->canvas->cancelDrag();
}

/// A press that is still being handled has not begun its drag: it ends once the press returns.
void MouseRoute::lose() {
    if (!captured_) return;
    cancelDrag();
    if (pressing_) {
        lost_ = true;
        return;
    }
    toCaptured(fernwick::WM_LBUTTONUP);
    endCapture();
}

void MouseRoute::closing(const DesignerWindow& designer) {
    if (captured_ && windows_.numbers.find(captured_).designer == &designer) lose();
}

void MouseRoute::postMove() {
    if (!captured_) return;
    ++postedMoves_;
    posted_ = captured_;
    QTimer::singleShot(0, this, [this] { deliverPosted(); });
}

void MouseRoute::deliverPosted() {
    if (const auto window = std::exchange(posted_, 0); window && window == captured_)
        toCaptured(fernwick::WM_MOUSEMOVE);
}

bool MouseRoute::eventFilter(QObject* watched, QEvent* event) {
    const auto hidesDesigner = [&] {
        const auto* designer = windows_.numbers.find(captured_).designer;
        return designer && watched == designer->canvas;
    };
    const auto type = event->type();
    if ((type == QEvent::Show && takesMouse(*watched)) || (type == QEvent::Hide && hidesDesigner()) ||
        (type == QEvent::ApplicationStateChange && QApplication::applicationState() != Qt::ApplicationActive))
        lose();
    return false;
}

} // namespace workbench
