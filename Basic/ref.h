#pragma once
// Object variables: shared, or Nothing.
#include "Basic/runtime_error.h"
#include <concepts>
#include <memory>

namespace basic {

/// A class whose objects can be held as `T`: the same class or a derived one.
template <class U, class T>
concept HeldAs = std::convertible_to<std::shared_ptr<U>, std::shared_ptr<T>>;

/// An object variable. Empty means Nothing, and using Nothing is error 91. The object stays alive while one of its
/// members runs, so it may be released inside its own call.
template <class T>
class Ref {
public:
    Ref() = default;
    Ref(std::nullptr_t) {}
    template <HeldAs<T> U>
    Ref(std::shared_ptr<U> p) : p_(std::move(p)) {}
    template <HeldAs<T> U>
    Ref(const Ref<U>& r) : p_(r.shared()) {}

    /// By value, so that the object stays alive until the end of the full expression.
    std::shared_ptr<T> operator->() const { return checked(); }
    /// The object itself. Does not keep it alive: use it only while a Ref to it is in scope.
    T& operator*() const { return *checked(); }
    explicit operator bool() const { return p_ != nullptr; }
    const std::shared_ptr<T>& shared() const { return p_; }

    /// VB's Is: the same object, or both Nothing.
    friend bool operator==(const Ref& a, const Ref& b) { return a.p_ == b.p_; }

private:
    const std::shared_ptr<T>& checked() const {
        if (!p_) throw RuntimeError(kObjectVariableNotSet);
        return p_;
    }

    std::shared_ptr<T> p_;
};

template <class T, class... A>
Ref<T> make(A&&... a) {
    return std::make_shared<T>(std::forward<A>(a)...);
}

/// Converts to another type of the same object; Nothing if the object does not have this type.
template <class T, class U>
Ref<T> cast(const Ref<U>& r) {
    return std::dynamic_pointer_cast<T>(r.shared());
}

} // namespace basic
