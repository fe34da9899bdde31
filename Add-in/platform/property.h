#pragma once
// Properties of forms and controls: values that notify watchers.
#include "Add-in/platform/events.h"
#include <utility>
#include <vector>

namespace fernwick {

struct Designed {
    virtual void asDesigned() = 0;

protected:
    ~Designed() = default;
};

/// A form or a control, whose properties Load resets to their design values.
struct PropertyOwner {
    std::vector<Designed*> properties;
    void asDesigned() {
        for (auto* property : properties) property->asDesigned();
    }
};

/// A value that notifies its watchers after each change; setting an equal value does not notify. Releasing a watch or
/// destroying the property stops notifications at once.
template <class T>
class Property final : Designed {
public:
    explicit Property(T value = {}) : value_(value), designed_(std::move(value)) {}
    Property(PropertyOwner* owner, T value = {}) : Property(std::move(value)) { owner->properties.push_back(this); }
    Property(const Property&) = delete;

    const T& operator()() const { return value_; }
    void operator()(T value) {
        if (value == value_) return;
        value_ = std::move(value);
        const T copy = value_; // a watcher may set the value again or destroy this property
        changed_.raise(copy);
    }
    /// Sets the design value, which Load restores.
    void design(T value) {
        designed_ = value;
        (*this)(std::move(value));
    }
    [[nodiscard]] Subscription watch(std::function<void(const T&)> handler) const {
        return changed_.connect(std::move(handler));
    }

private:
    void asDesigned() override { (*this)(designed_); }

    T value_, designed_;
    mutable Event<const T&> changed_;
};

} // namespace fernwick
