#pragma once

namespace fernwick {

/// The result of CreateObject: an object of any class, to be cast to a known interface.
class Object {
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;
};

} // namespace fernwick
