#include "Basic/runtime_error.h"
#include "Host/system/event_loop.h"
#include <gtest/gtest.h>
#include <optional>

namespace {

struct HandClock : fernwick::Clock {
    std::int64_t now = 0;
    std::int64_t Now() const override { return now; }
    std::int64_t Monotonic() const override { return now; }
    void pass(int milliseconds) { now += milliseconds * std::int64_t{1'000'000}; }
};

class RunningLoop : public testing::Test {
protected:
    auto note(const std::string& what) {
        return [this, what] { log += what; };
    }
    auto passing() {
        return [this](std::int64_t nanoseconds) { clock.now += nanoseconds; };
    }
    HandClock clock;
    host::EventLoop loop{clock};
    std::string log;
};

} // namespace

TEST_F(RunningLoop, DeliversEventsPostedBeforeTheCall) {
    loop.Post([this] {
        log += "a";
        loop.Post(note("late"));
    });
    loop.Post(note("b"));
    loop.DoEvents();
    EXPECT_EQ(log, "ab");
    loop.DoEvents();
    EXPECT_EQ(log, "ablate");
}

TEST_F(RunningLoop, ANestedCallDeliversTheRest) {
    loop.Post([this] {
        log += "a";
        loop.DoEvents();
        log += "c";
    });
    loop.Post(note("b"));
    loop.DoEvents();
    EXPECT_EQ(log, "abc");
}

TEST_F(RunningLoop, DueTimersTickAfterPostedEvents) {
    const auto slow = loop.StartTimer(20, note("s"));
    const auto quick = loop.StartTimer(10, note("q"));
    loop.Post(note("p"));
    loop.DoEvents();
    EXPECT_EQ(log, "p");
    clock.pass(25);
    loop.Post(note("p"));
    loop.DoEvents();
    EXPECT_EQ(log, "ppqs"); // in the order of their due times, once each
    loop.DoEvents();
    EXPECT_EQ(log, "ppqs");
}

TEST_F(RunningLoop, ATimerNeverTicksWithinItsOwnTick) {
    const auto timer = loop.StartTimer(1, [this] {
        log += "(";
        clock.pass(10);
        loop.DoEvents();
        log += ")";
    });
    const auto other = loop.StartTimer(5, note("o"));
    clock.pass(1);
    loop.DoEvents();
    EXPECT_EQ(log, "(o)");
}

TEST_F(RunningLoop, EventsPostedByATickAreDeliveredByItsOwnLoop) {
    const auto timer = loop.StartTimer(1, [this] {
        loop.Post(note("asked "));
        loop.DoEvents();
        log += "done";
    });
    clock.pass(1);
    loop.DoEvents();
    EXPECT_EQ(log, "asked done");
}

TEST_F(RunningLoop, AStoppedTimerDoesNotTickInTheSameCall) {
    std::optional<fernwick::Subscription> second;
    const auto first = loop.StartTimer(1, [&] {
        log += "1";
        second.reset();
    });
    second = loop.StartTimer(1, note("2"));
    clock.pass(5);
    loop.DoEvents();
    EXPECT_EQ(log, "1");
    EXPECT_EQ(basic::attempt([&] { static_cast<void>(loop.StartTimer(0, [] {})); }).Number, 5);
}

TEST_F(RunningLoop, AnErrorLeavesTheRestForTheNextCall) {
    loop.Post([] { throw basic::RuntimeError(5); });
    loop.Post(note("rest"));
    const auto timer = loop.StartTimer(1, [this] {
        log += "t";
        throw basic::RuntimeError(6);
    });
    EXPECT_EQ(basic::attempt([&] { loop.DoEvents(); }).Number, 5);
    clock.pass(1);
    EXPECT_EQ(basic::attempt([&] { loop.DoEvents(); }).Number, 6);
    clock.pass(1);
    EXPECT_EQ(basic::attempt([&] { loop.DoEvents(); }).Number, 6); // the tick has ended nevertheless
    EXPECT_EQ(log, "resttt");
}

TEST_F(RunningLoop, DrainingRunsTimersUntilNoneIsLeft) {
    std::optional<fernwick::Subscription> timer;
    int ticks = 0;
    timer = loop.StartTimer(1, [&] {
        if (++ticks < 3) return;
        loop.Post(note("posted by the last tick"));
        timer.reset();
    });
    EXPECT_TRUE(loop.drain(passing()));
    EXPECT_EQ(ticks, 3);
    EXPECT_EQ(log, "posted by the last tick");
}

TEST_F(RunningLoop, DrainingEndsEvenIfATimerNeverStops) {
    int ticks = 0;
    const auto timer = loop.StartTimer(100, [&] { ++ticks; });
    EXPECT_FALSE(loop.drain(passing(), 1'000'000'000));
    EXPECT_EQ(ticks, 9);
    const auto hourly = loop.StartTimer(3'600'000, note("never"));
    EXPECT_FALSE(loop.drain(passing(), 50'000'000));
    EXPECT_EQ(log, "");
}

TEST_F(RunningLoop, ReturnsTheTimeUntilTheNextEvent) {
    EXPECT_EQ(loop.untilNext(), std::nullopt);
    auto timer = loop.StartTimer(10, note("t"));
    clock.pass(4);
    EXPECT_EQ(loop.untilNext(), 6'000'000);
    clock.pass(20);
    EXPECT_EQ(loop.untilNext(), 0);
    timer.reset();
    EXPECT_EQ(loop.untilNext(), std::nullopt);
    loop.Post(note("p"));
    EXPECT_EQ(loop.untilNext(), 0);
}
