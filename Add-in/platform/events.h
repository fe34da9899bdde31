#pragma once
// Events that may change during their own raise: handlers may connect, disconnect and raise again, and the event may be
// destroyed.
#include <algorithm>
#include <exception>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace fernwick {

/// A handler's registration with an event. Releasing it stops the calls at once, also during a raise.
class Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<bool> live) : live_(std::move(live)) {}
    Subscription(Subscription&&) noexcept = default;
    Subscription& operator=(Subscription&& other) noexcept {
        reset();
        live_ = std::move(other.live_);
        return *this;
    }
    ~Subscription() { reset(); }

    void reset() {
        if (live_) *live_ = false;
        live_.reset();
    }

private:
    std::shared_ptr<bool> live_;
};

template <class... Args>
class Event {
    struct Slot {
        std::shared_ptr<bool> live;
        std::function<void(Args...)> call;
    };
    using Slots = std::vector<std::shared_ptr<Slot>>;

public:
    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    /// Once destroyed, an event calls no handlers, not even in a raise in progress.
    ~Event() {
        for (auto& slot : *slots_) *slot->live = false;
    }

    [[nodiscard]] Subscription connect(std::function<void(Args...)> handler) {
        auto live = std::make_shared<bool>(true);
        auto grown = std::make_shared<Slots>(*slots_); // a raise in progress keeps its own list
        std::erase_if(*grown, [](const auto& slot) { return !*slot->live; });
        grown->push_back(std::make_shared<Slot>(Slot{live, std::move(handler)}));
        slots_ = std::move(grown);
        return Subscription{std::move(live)};
    }

    /// Calls every handler that was connected at the start and still is. All are called; then the first error is
    /// thrown.
    void raise(Args... args) const {
        const std::shared_ptr<const Slots> slots = slots_;
        std::exception_ptr first;
        for (const auto& slot : *slots) {
            if (!*slot->live) continue;
            try {
                slot->call(args...);
            } catch (...) {
                if (!first) first = std::current_exception();
            }
        }
        if (first) std::rethrow_exception(first);
    }

    /// Whether any handler is connected; lets a source skip the preparation of an event.
    bool hasHandlers() const {
        return std::any_of(slots_->begin(), slots_->end(), [](const auto& slot) { return *slot->live; });
    }

private:
    std::shared_ptr<Slots> slots_ = std::make_shared<Slots>();
};

} // namespace fernwick
