#pragma once
// Sink variables: handlers run while their variable holds a source.
#include "Add-in/platform/events.h"
#include "Basic/ref.h"

namespace fernwick {

/// One row of a sink: connects an event of the source to a member function, which may omit the arguments.
template <class Source, class Owner, class Result, class... Args, class... Taken>
auto on(Event<Args...> Source::*event, Result (Owner::*handler)(Taken...)) {
    return [event, handler](Source& source, Owner& owner) {
        return (source.*event).connect([&owner, handler](Args... args) {
            if constexpr (sizeof...(Taken) == 0)
                (owner.*handler)();
            else
                (owner.*handler)(args...);
        });
    };
}

/// A sink variable. Its handlers run while it holds a source; assigning another source reconnects them.
template <class Source>
class WithEvents {
public:
    template <class Owner, class... Rows>
    explicit WithEvents(Owner* owner, Rows... rows)
        : bind_([=](Source& source) {
              std::vector<Subscription> bound;
              (bound.push_back(rows(source, *owner)), ...);
              return bound;
          }) {}
    WithEvents(const WithEvents&) = delete;

    /// The old source is released first; assigning Nothing only releases it.
    WithEvents& operator=(basic::Ref<Source> source) {
        bound_.clear();
        const auto old = std::exchange(source_, std::move(source));
        if (source_) bound_ = bind_(*source_);
        return *this;
    }
    explicit operator bool() const { return bool(source_); }
    const basic::Ref<Source>& source() const { return source_; }

private:
    std::function<std::vector<Subscription>(Source&)> bind_;
    basic::Ref<Source> source_;
    std::vector<Subscription> bound_;
};

} // namespace fernwick
