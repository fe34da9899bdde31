#pragma once
// A user's hands and eyes: real events of mouse and keyboard, and looks at the window from its own thread.
#include <QApplication>
#include <QPoint>
#include <QRect>
#include <QStringList>
#include <functional>
#include <string>
#include <type_traits>

class QWidget;

namespace test {

/// Asks in the window's thread, wherever its loop turns.
template <class Question>
auto ask(Question&& question) {
    using Answer = std::invoke_result_t<Question>;
    if constexpr (std::is_void_v<Answer>) {
        QMetaObject::invokeMethod(qApp, question, Qt::BlockingQueuedConnection);
    } else {
        Answer answer{};
        QMetaObject::invokeMethod(
            qApp, [&] { answer = question(); }, Qt::BlockingQueuedConnection);
        return answer;
    }
}

/// Has the window's thread do something that may show a dialog; doesn't wait for its end.
void begin(std::function<void()> act);

/// Looks until it is so. After half a minute it fails with what was expected, and ends the test.
void eventually(const std::string& expected, const std::function<bool()>& isSo);

/// The program that sends the events, with these arguments.
void xdotool(const QStringList& arguments);

/// Keys by their X names, "ctrl+s", one after the other; text as it is typed.
void press(const QStringList& keys);
void type(const QString& text);
/// Points of the screen.
void click(const QPoint& at);
void doubleClick(const QPoint& at);
void rightClick(const QPoint& at);
/// With steps in between, as a hand does.
void drag(const QPoint& from, const QPoint& to);

/// The middle of a part of a widget on the screen; of the whole without one.
QPoint middleOf(QWidget& widget, const QRect& part = {});

enum class With { Mouse, Keyboard };
struct Answer {
    With with;
    QStringList buttons;
};
/// Answers whatever dialogs with such buttons come, until it is so: by a click, or by Return where the button is the one
/// that Return presses.
void answerUntil(const std::string& expected, const Answer& answer, const std::function<bool()>& isSo);

} // namespace test
