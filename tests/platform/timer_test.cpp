#include "Add-in/platform/event_loop.h"
#include "Basic/runtime_error.h"
#include <deque>
#include <gtest/gtest.h>

using namespace fernwick;

namespace {

/// All timers are due at each turn.
class EagerLoop : public EventLoop {
public:
    void Post(std::function<void()> event) override { queue_.push_back(std::move(event)); }
    void DoEvents() override { turn_.raise(); }
    Subscription StartTimer(int, std::function<void()> tick) override { return turn_.connect(std::move(tick)); }

private:
    std::deque<std::function<void()>> queue_;
    Event<> turn_;
};

struct Ticker {
    explicit Ticker(EventLoop& l) : loop(l) {}
    EventLoop& loop;
    Timer timer{loop, 1, this, &Ticker::tick};
    int ticks = 0;
    bool failOnce = false;
    void tick() {
        ++ticks;
        if (std::exchange(failOnce, false)) throw basic::RuntimeError(5);
        loop.DoEvents();
        if (ticks == 2) timer.Enabled(false);
    }
};

} // namespace

TEST(Timer, TicksOnlyWhileEnabledAndNeverInsideItsOwnTick) {
    EagerLoop loop;
    Ticker ticker{loop};
    loop.DoEvents();
    EXPECT_EQ(ticker.ticks, 0);
    ticker.timer.Enabled(true);
    loop.DoEvents();
    EXPECT_EQ(ticker.ticks, 1);
    loop.DoEvents();
    loop.DoEvents();
    EXPECT_EQ(ticker.ticks, 2);
    EXPECT_FALSE(ticker.timer.Enabled());
}

TEST(Timer, TicksAgainAfterAFailedTick) {
    EagerLoop loop;
    Ticker ticker{loop};
    ticker.failOnce = true;
    ticker.timer.Enabled(true);
    EXPECT_THROW(loop.DoEvents(), basic::RuntimeError);
    loop.DoEvents();
    EXPECT_EQ(ticker.ticks, 2);
}
