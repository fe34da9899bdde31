#pragma once
// Properties of forms and controls: values that tell who watches them.
#include "Add-in/platform/events.h"
#include <utility>
#include <vector>

namespace fernwick {

struct Designed {
    virtual void asDesigned() = 0;

protected:
    ~Designed() = default;
};

/// A form or a control: Load puts what it owns back as designed.
struct PropertyOwner {
    std::vector<Designed*> properties;
    void asDesigned() {
        for (auto* property : properties) property->asDesigned();
    }
};

/// A value that tells who watches. The watcher is told after the change; a watch that is let go of, or a
/// property that dies, ends the telling at once. Setting an equal value tells nobody.
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
        const T told = value_; // a watcher may set it again, or destroy us
        changed_.raise(told);
    }
    /// Sets the value that Load comes back to.
    void design(T value) {
        designed_ = value;
        (*this)(std::move(value));
    }
    [[nodiscard]] Subscription watch(std::function<void(const T&)> told) const {
        return changed_.connect(std::move(told));
    }

private:
    void asDesigned() override { (*this)(designed_); }

    T value_, designed_;
    mutable Event<const T&> changed_;
};

} // namespace fernwick
