#pragma once
// Event processing and timers.
#include "Add-in/platform/events.h"
#include "Add-in/platform/property.h"
#include <functional>

namespace fernwick {

/// The thread's message loop. It may be run recursively.
class EventLoop {
public:
    virtual ~EventLoop() = default;
    virtual void Post(std::function<void()> event) = 0;
    /// Delivers what was posted before the call, then runs the timers that are due.
    virtual void DoEvents() = 0;
    /// Ticks every `interval` milliseconds as long as the returned subscription lives.
    [[nodiscard]] virtual Subscription StartTimer(int interval, std::function<void()> tick) = 0;
};

/// A form's timer. It never ticks inside its own tick.
class Timer {
public:
    template <class F>
    Timer(EventLoop& loop, int interval, F* form, void (F::*tick)())
        : loop_(loop), interval_(interval), tick_([form, tick] { (form->*tick)(); }) {}
    Timer(const Timer&) = delete;

    bool Enabled() const { return enabled_; }
    void Enabled(bool enabled) {
        if (enabled == enabled_) return;
        enabled_ = enabled;
        turn_ = enabled ? loop_.StartTimer(interval_, [this] { tick(); }) : Subscription{};
    }

private:
    void tick() {
        if (ticking_) return;
        ticking_ = true;
        struct Done {
            bool& ticking;
            ~Done() { ticking = false; }
        } done{ticking_};
        tick_();
    }

    EventLoop& loop_;
    int interval_;
    std::function<void()> tick_;
    bool enabled_ = false;
    bool ticking_ = false;
    Subscription turn_;
};

} // namespace fernwick
