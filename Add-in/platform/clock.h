#pragma once
#include <cstdint>

namespace fernwick {

class Clock {
public:
    virtual ~Clock() = default;
    /// Nanoseconds since 1970.
    virtual std::int64_t Now() const = 0;
    /// Nanoseconds since a fixed point; never decreases.
    virtual std::int64_t Monotonic() const = 0;
};

} // namespace fernwick
