#include "Apps/workbench/bridge/qt_loop.h"
#include <QCoreApplication>
#include <QTimer>

namespace workbench {

void QtLoop::Post(std::function<void()> event) {
    loop_.Post(std::move(event));
    arm();
}

void QtLoop::DoEvents() {
    QCoreApplication::processEvents();
    loop_.DoEvents();
    arm();
}

fernwick::Subscription QtLoop::StartTimer(int interval, std::function<void()> tick) {
    auto started = loop_.StartTimer(interval, std::move(tick));
    arm();
    return started;
}

void QtLoop::arm() {
    constexpr std::int64_t kNanosecondsPerMillisecond = 1'000'000;
    const auto wait = loop_.untilNext();
    if (!wait) return;
    const auto milliseconds = int((*wait + kNanosecondsPerMillisecond - 1) / kNanosecondsPerMillisecond);
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &context_, [this, turn = ++armed_] {
        if (turn == armed_) wake();
    });
}

void QtLoop::wake() {
    arm(); // first, as a delivery may show a form whose nested loop must wake too
    try {
        loop_.DoEvents();
    } catch (...) { failed_(std::current_exception()); }
    arm();
}

} // namespace workbench
