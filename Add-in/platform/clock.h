#pragma once
#include <cstdint>

namespace fernwick {

class Clock {
public:
    virtual ~Clock() = default;
    /// Nanoseconds since 1970.
    virtual std::int64_t Now() const = 0;
    /// Nanoseconds from some fixed point; never goes back.
    virtual std::int64_t Monotonic() const = 0;
};

} // namespace fernwick
