#pragma once

namespace fernwick {

/// What CreateObject gives: an object of any class, to be cast to the interface that its user knows.
class Object {
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;
};

} // namespace fernwick
