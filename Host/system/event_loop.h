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

/// Uses the given clock. An error thrown by an event leaves DoEvents; the remaining events are delivered next time.
class EventLoop : public fernwick::EventLoop {
public:
    explicit EventLoop(const fernwick::Clock& clock) : clock_(clock) {}

    void Post(std::function<void()> event) override { posted_.push_back(std::move(event)); }
    /// Delivers posted events and due timers. A timer never ticks within its own tick; others do if a tick runs the
    /// loop.
    void DoEvents() override;
    /// Error 5 for an interval below 1.
    [[nodiscard]] fernwick::Subscription StartTimer(int interval, std::function<void()> tick) override;

    /// Returns the nanoseconds until the next event, 0 for now; nothing if no event is posted and no timer runs.
    std::optional<std::int64_t> untilNext();

    /// Runs until no event is posted and no timer runs, but no longer than `patience`: a timer that is never stopped
    /// must not keep a program alive. `sleep` waits until the next timer. All times in nanoseconds. Returns false if
    /// something is left.
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
    /// The timer that is due next, or null.
    const RunningTimer* nearest();

    const fernwick::Clock& clock_;
    std::deque<std::function<void()>> posted_;
    std::vector<std::shared_ptr<RunningTimer>> timers_;
};

} // namespace host
