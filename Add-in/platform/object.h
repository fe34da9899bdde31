#pragma once

namespace fernwick {

/// The base of all objects. CreateObject returns one, and the caller casts it to a known interface.
class Object {
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;
};

} // namespace fernwick
