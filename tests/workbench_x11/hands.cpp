#include "tests/workbench_x11/hands.h"
#include <QAbstractButton>
#include <QElapsedTimer>
#include <QLabel>
#include <QProcess>
#include <QThread>
#include <QWidget>
#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>

namespace test {

namespace {

constexpr int kMostWaiting = 30'000, kBetweenLooks = 5, kDragSteps = 12;

void moveTo(QStringList& arguments, const QPoint& at) {
    // the first device pixel within the point
    const auto pixels = QPointF(at) * qApp->devicePixelRatio();
    arguments << "mousemove" << QString::number(int(std::ceil(pixels.x())))
              << QString::number(int(std::ceil(pixels.y())));
}

QString plain(QString caption) { return caption.remove('&'); }

/// Where to click in the topmost window.
std::optional<QPoint> buttonInDialog(const QStringList& names) {
    auto* const dialog = QApplication::activeModalWidget();
    if (!dialog || !dialog->isVisible()) return {};
    for (auto* button : dialog->findChildren<QAbstractButton*>()) {
        const bool isMeant = names.contains(button->objectName()) || names.contains(plain(button->text()));
        if (isMeant && button->isVisible() && button->isEnabled()) return middleOf(*button);
    }
    return {};
}

/// The text of the open dialog.
std::string openDialog() {
    auto* const dialog = QApplication::activeModalWidget();
    if (!dialog) return "no open dialog";
    QString words = dialog->windowTitle();
    for (const auto* label : dialog->findChildren<QLabel*>()) words += " | " + label->text();
    return "open dialog: " + words.toStdString();
}

} // namespace

void begin(std::function<void()> act) { QMetaObject::invokeMethod(qApp, std::move(act), Qt::QueuedConnection); }

void eventually(const std::string& expected, const std::function<bool()>& isSo) {
    QElapsedTimer waiting;
    waiting.start();
    while (!ask(isSo)) {
        if (waiting.elapsed() > kMostWaiting) throw std::runtime_error("never: " + expected + "; " + ask(openDialog));
        QThread::msleep(kBetweenLooks);
    }
}

void xdotool(const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start("xdotool", arguments);
    ASSERT_TRUE(process.waitForFinished());
    ASSERT_EQ(process.exitCode(), 0);
}

void findWindow(const QString& name, const QStringList& action) {
    constexpr int kMostTries = 3; // a search fails when another window closes meanwhile
    const auto arguments = QStringList{"60", "xdotool", "search", "--sync", "--onlyvisible", "--name", name} + action;
    int status = 1;
    for (int tries = 0; status != 0 && tries < kMostTries; ++tries) status = QProcess::execute("timeout", arguments);
    ASSERT_EQ(status, 0) << name.toStdString();
}

void press(const QStringList& keys) { xdotool(QStringList{"key", "--delay", "5"} + keys); }

void type(const QString& text) { xdotool({"type", "--delay", "5", text}); }

void click(const QPoint& at) {
    QStringList arguments;
    moveTo(arguments, at);
    xdotool(arguments << "click"
                      << "1");
}

void doubleClick(const QPoint& at) {
    QStringList arguments;
    moveTo(arguments, at);
    xdotool(arguments << "click"
                      << "--repeat"
                      << "2"
                      << "--delay"
                      << "20"
                      << "1");
}

void rightClick(const QPoint& at) {
    QStringList arguments;
    moveTo(arguments, at);
    xdotool(arguments << "click"
                      << "3");
}

void drag(const QPoint& from, const QPoint& to) {
    QStringList arguments;
    moveTo(arguments, from);
    arguments << "mousedown"
              << "1";
    for (int step = 1; step <= kDragSteps; ++step) moveTo(arguments, from + (to - from) * step / kDragSteps);
    xdotool(arguments << "mouseup"
                      << "1");
}

QPoint middleOf(QWidget& widget, const QRect& part) {
    return widget.mapToGlobal((part.isNull() ? widget.rect() : part).center());
}

void answerUntil(const std::string& expected, const Answer& answer, const std::function<bool()>& isSo) {
    std::optional<QPoint> at;
    QWidget* answered = nullptr;
    const auto look = [&] {
        auto* const dialog = QApplication::activeModalWidget();
        if (dialog != answered) answered = nullptr;
        at = answered || (dialog && !dialog->isActiveWindow()) ? std::nullopt : buttonInDialog(answer.buttons);
        if (at) answered = dialog;
        return at.has_value() || isSo();
    };
    do {
        eventually(expected, look);
        if (at && answer.with == With::Mouse) click(*at);
        if (at && answer.with == With::Keyboard) press({"Return"});
    } while (at);
}

} // namespace test
