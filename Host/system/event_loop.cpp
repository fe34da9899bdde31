#include "Host/system/event_loop.h"
#include "Host/files/system_error.h"
#include "Host/system/scoped_flag.h"
#include <algorithm>

namespace host {
namespace {

constexpr std::int64_t kNanosecondsPerMillisecond = 1'000'000;

} // namespace

void EventLoop::DoEvents() {
    deliverPosted();
    tickDue();
}

fernwick::Subscription EventLoop::StartTimer(int interval, std::function<void()> tick) {
    if (interval < 1) throw hostError(basic::kInvalidProcedureCall);
    auto live = std::make_shared<bool>(true);
    const auto length = interval * kNanosecondsPerMillisecond;
    timers_.push_back(std::make_shared<RunningTimer>(
        RunningTimer{live, length, clock_.Monotonic() + length, std::move(tick), false}));
    return fernwick::Subscription(std::move(live));
}

void EventLoop::deliverPosted() {
    // An event may run the loop itself and take events that are counted here.
    for (auto left = posted_.size(); left > 0 && !posted_.empty(); --left) {
        const auto event = std::move(posted_.front());
        posted_.pop_front();
        event();
    }
}

void EventLoop::tickDue() {
    std::erase_if(timers_, [](const auto& timer) { return !*timer->live; });
    const auto now = clock_.Monotonic();
    auto due = timers_; // a tick starts and stops timers
    std::erase_if(due, [now](const auto& timer) { return timer->due > now; });
    std::stable_sort(due.begin(), due.end(), [](const auto& a, const auto& b) { return a->due < b->due; });
    for (const auto& timer : due)
        if (*timer->live && !timer->ticking && timer->due <= now) tick(*timer);
}

void EventLoop::tick(RunningTimer& timer) {
    const ScopedFlag ticking(timer.ticking);
    timer.due = clock_.Monotonic() + timer.interval;
    timer.tick();
}

const EventLoop::RunningTimer* EventLoop::nearest() {
    std::erase_if(timers_, [](const auto& timer) { return !*timer->live; });
    const auto earlier = [](const auto& a, const auto& b) { return a->due < b->due; };
    const auto first = std::min_element(timers_.begin(), timers_.end(), earlier);
    return first == timers_.end() ? nullptr : first->get();
}

std::optional<std::int64_t> EventLoop::untilNext() {
    if (!posted_.empty()) return 0;
    const auto* next = nearest();
    if (!next) return {};
    return std::max<std::int64_t>(0, next->due - clock_.Monotonic());
}

bool EventLoop::drain(const std::function<void(std::int64_t)>& sleep, std::int64_t patience) {
    const auto end = clock_.Monotonic() + patience;
    for (auto now = end - patience; now < end; now = clock_.Monotonic()) {
        const auto* next = nearest();
        if (posted_.empty() && !next) return true;
        if (posted_.empty() && next->due >= end) return false;
        if (posted_.empty() && next->due > now) sleep(next->due - now);
        DoEvents();
    }
    return posted_.empty() && !nearest();
}

} // namespace host
