#include "Add-in/platform/events.h"
#include "Add-in/platform/with_events.h"
#include "Basic/runtime_error.h"
#include <gtest/gtest.h>

using basic::Ref;
using fernwick::Event;
using fernwick::on;
using fernwick::Subscription;
using fernwick::WithEvents;
using Calls = std::vector<std::string>;

TEST(Event, CallsHandlersConnectedBeforeAndStill) {
    Event<> event;
    Calls calls;
    Subscription removed, added;
    const auto first = event.connect([&] {
        calls.push_back("first");
        removed.reset();
        added = event.connect([&] { calls.push_back("late"); });
    });
    removed = event.connect([&] { calls.push_back("never"); });
    const auto last = event.connect([&] { calls.push_back("last"); });
    event.raise();
    EXPECT_EQ(calls, (Calls{"first", "last"}));
    calls.clear();
    const auto before = std::move(added);
    event.raise();
    EXPECT_EQ(calls, (Calls{"first", "last", "late"}));
}

TEST(Event, CallsAllHandlersAndThrowsTheFirstError) {
    Event<int> event;
    Calls calls;
    const auto a = event.connect([&](int) { throw basic::RuntimeError(5, "first"); });
    const auto b = event.connect([&](int) { throw basic::RuntimeError(9, "second"); });
    const auto c = event.connect([&](int n) { calls.push_back(std::to_string(n)); });
    EXPECT_EQ(basic::attempt([&] { event.raise(7); }).Description, "first");
    EXPECT_EQ(calls, Calls{"7"});
}

TEST(Event, MayBeDestroyedDuringItsRaise) {
    auto event = std::make_unique<Event<>>();
    int calls = 0;
    const auto a = event->connect([&] {
        ++calls;
        event.reset();
    });
    const auto b = event->connect([&] { ++calls; });
    event->raise();
    EXPECT_EQ(calls, 1);
}

TEST(Event, MayBeRaisedFromItsOwnHandler) {
    Event<int> event;
    std::vector<int> seen;
    const auto a = event.connect([&](int n) {
        seen.push_back(n);
        if (n > 0) event.raise(n - 1);
    });
    event.raise(2);
    EXPECT_EQ(seen, (std::vector<int>{2, 1, 0}));
}

TEST(Event, HandlerMayDestroyItself) {
    Event<> event;
    auto own = std::make_unique<Subscription>();
    int calls = 0;
    *own = event.connect([&] {
        ++calls;
        own.reset();
    });
    event.raise();
    event.raise();
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(event.hasHandlers());
}

TEST(Event, SubscriptionMayOutliveTheEvent) {
    Subscription left;
    {
        Event<> event;
        left = event.connect([] {});
    }
    left.reset();
}

namespace {
struct Source {
    Event<const std::string&, bool&> Asked;
};
struct Listener {
    Calls calls;
    WithEvents<Source> sink{this, on(&Source::Asked, &Listener::sink_Asked)};
    WithEvents<Source> silent{this, on(&Source::Asked, &Listener::silent_Asked)};
    void sink_Asked(const std::string& text, bool& cancel) {
        calls.push_back(text);
        cancel = true;
    }
    void silent_Asked() {
        calls.push_back("silent");
        silent = nullptr;
        calls.push_back("still here");
    }
};
} // namespace

TEST(WithEvents, FollowsItsSource) {
    Listener listener;
    const auto one = basic::make<Source>(), two = basic::make<Source>();
    listener.sink = one;
    listener.sink = two;
    bool cancel = false;
    one->Asked.raise("one", cancel);
    EXPECT_FALSE(cancel);
    two->Asked.raise("two", cancel);
    EXPECT_TRUE(cancel);
    listener.sink = nullptr;
    two->Asked.raise("again", cancel);
    EXPECT_EQ(listener.calls, Calls{"two"});
    EXPECT_FALSE(listener.sink);
}

TEST(WithEvents, MayReleaseTheLastReferenceDuringTheRaise) {
    Listener listener;
    auto source = basic::make<Source>();
    const std::weak_ptr<Source> watch = source.shared();
    listener.silent = source;
    Source* raw = source.shared().get();
    source = nullptr;
    bool cancel = false;
    raw->Asked.raise("x", cancel);
    EXPECT_TRUE(watch.expired());
    EXPECT_EQ(listener.calls, (Calls{"silent", "still here"}));
}

TEST(WithEvents, ReleasesItsSourceWhenDestroyed) {
    const auto source = basic::make<Source>();
    {
        Listener listener;
        listener.sink = source;
        EXPECT_TRUE(source->Asked.hasHandlers());
    }
    EXPECT_FALSE(source->Asked.hasHandlers());
}
