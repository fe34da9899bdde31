#pragma once
// Which window gets the messages of the mouse.
#include "Apps/workbench/zoom/window_numbers.h"
#include "Apps/workbench/zoom/window_procedures.h"
#include <QObject>
#include <QPointF>
#include <functional>
#include <optional>

namespace workbench {

/// A left press over a document gives the mouse to the window that received it until the release: its messages pass the
/// hooks, then its procedure, in its own client coordinates, and the document gets none. The mouse is lost when a menu
/// or a box opens, the designer is hidden or closed, the user presses Escape, or another program comes to the front.
class MouseRoute final : public QObject {
public:
    struct Windows {
        WindowNumbers& numbers;
        WindowProcedures& procedures;
        /// Converts a place in a window's client area to the screen.
        std::function<fernwick::WindowPoint(fernwick::Hwnd, fernwick::WindowPoint)> toScreen;
    };
    explicit MouseRoute(Windows windows) : windows_(std::move(windows)) {}

    // ---- called by a document's window ----
    void press(fernwick::Hwnd document, const QPointF& at, const QPointF& onScreen, Qt::KeyboardModifiers keys);
    void move(fernwick::Hwnd document, const QPointF& at, const QPointF& onScreen, Qt::KeyboardModifiers keys);
    void release(fernwick::Hwnd document, const QPointF& at, const QPointF& onScreen, Qt::KeyboardModifiers keys);
    /// Ends a drag without a change.
    void lose();
    /// A designer's view is being closed.
    void closing(const DesignerWindow& designer);

    // ---- called by the procedures of windows ----
    void capture(fernwick::Hwnd window);
    void endCapture();
    fernwick::Hwnd captured() const { return captured_; }
    fernwick::WindowPoint cursor() const { return cursor_; }
    Qt::KeyboardModifiers keys() const { return keys_; }
    void keys(Qt::KeyboardModifiers keys) { keys_ = keys; }
    /// Posts one move to the window that has the mouse.
    void postMove();
    /// For tests: the moves that were posted.
    int postedMoves() const { return postedMoves_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void at(const QPointF& onScreen, Qt::KeyboardModifiers keys);
    void deliverPosted();
    void toDocument(fernwick::Hwnd document, unsigned number, const QPointF& at);
    void toCaptured(unsigned number);
    void cancelDrag();

    Windows windows_;
    fernwick::Hwnd captured_ = 0;
    fernwick::WindowPoint cursor_;
    Qt::KeyboardModifiers keys_;
    bool pressing_ = false, lost_ = false;
    /// The window that a move was posted to.
    fernwick::Hwnd posted_ = 0;
    int postedMoves_ = 0;
};

} // namespace workbench
