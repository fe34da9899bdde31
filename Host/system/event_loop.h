#pragma once
// The message loop of a process without a window system.
#include "Add-in/platform/clock.h"
#include "Add-in/platform/event_loop.h"
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace host {

/// Time comes from the clock given. An error that a delivery lets out comes out of the turn; the rest waits for the next.
class EventLoop : public fernwick::EventLoop {
public:
    explicit EventLoop(const fernwick::Clock& clock) : clock_(clock) {}

    void Post(std::function<void()> event) override { posted_.push_back(std::move(event)); }
    /// A timer never ticks within its own tick; others do, when a tick turns the loop.
    void DoEvents() override;
    /// Error 5 for an interval below 1.
    [[nodiscard]] fernwick::Subscription StartTimer(int interval, std::function<void()> tick) override;

    /// Nanoseconds until something is due, 0 for now; nothing where none is posted and no timer runs.
    std::optional<std::int64_t> untilNext();

    /// Turns until nothing is posted and no timer runs, but no longer than `patience` by the clock: a timer that
    /// nobody stops must not keep a program alive. `sleep` lets the time until the next timer pass. All in nanoseconds.
    /// False when something is left.
    bool drain(const std::function<void(std::int64_t)>& sleep, std::int64_t patience = 5'000'000'000);

private:
    struct RunningTimer {
        std::shared_ptr<bool> live;
        std::int64_t interval = 0; ///< nanoseconds
        std::int64_t due = 0;      ///< by the monotonic clock
        std::function<void()> tick;
        bool ticking = false;
    };

    void deliverPosted();
    void tickDue();
    void tick(RunningTimer& timer);
    /// The nearest time at which a timer is due, if there is one.
    const RunningTimer* nearest();

    const fernwick::Clock& clock_;
    std::deque<std::function<void()>> posted_;
    std::vector<std::shared_ptr<RunningTimer>> timers_;
};

} // namespace host
