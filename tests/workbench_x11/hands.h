#pragma once
// Sends real mouse and keyboard events, and inspects the window from the test's thread.
#include <QApplication>
#include <QPoint>
#include <QRect>
#include <QStringList>
#include <functional>
#include <string>
#include <type_traits>

class QWidget;

namespace test {

/// Runs a function in the window's thread and returns its result.
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

/// Runs a function that may show a dialog in the window's thread, without waiting for it.
void begin(std::function<void()> act);

/// Waits until a condition is true. Fails the test after half a minute.
void eventually(const std::string& expected, const std::function<bool()>& isSo);

/// Runs the program that sends events, with these arguments.
void xdotool(const QStringList& arguments);

/// Waits for a window whose title matches the regular expression, then has xdotool carry out the action on it.
void findWindow(const QString& name, const QStringList& action = {});

/// Presses keys with these X names, such as "ctrl+s"; types a text.
void press(const QStringList& keys);
void type(const QString& text);
/// All points are in screen coordinates.
void click(const QPoint& at);
void doubleClick(const QPoint& at);
void rightClick(const QPoint& at);
/// Drags in several steps, as a user does.
void drag(const QPoint& from, const QPoint& to);

/// The centre of a part of a widget, or of the whole widget, on the screen.
QPoint middleOf(QWidget& widget, const QRect& part = {});

enum class With { Mouse, Keyboard };
struct Answer {
    With with;
    QStringList buttons;
};
/// Answers all dialogs with such buttons until a condition is true: by a click, or by Return for the default button.
void answerUntil(const std::string& expected, const Answer& answer, const std::function<bool()>& isSo);

} // namespace test
