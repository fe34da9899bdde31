#pragma once
// VB's random numbers.
#include "Basic/types.h"
#include <cstdint>

namespace tamarik {

/// The state of Rnd: a number of 24 bits, from which each next one is computed. A new application starts with the same one.
class Random {
public:
    Random() = default;
    /// Starts with another state, of which 24 bits count.
    explicit Random(std::uint32_t state) noexcept : state_(state & 0xFFFFFF) {}

    /// The next number, from 0 to less than 1.
    basic::Single next() noexcept;

    /// Rnd with an argument: the next number if it is positive, the last one again if it is 0; a negative argument starts
    /// over from itself, always with the same result.
    basic::Single next(basic::Single argument) noexcept;

    /// Randomize: replaces the middle bits of the state by those of `seed`. Of the clock, VB takes Timer.
    void randomize(basic::Double seed) noexcept;

private:
    basic::Single value() const noexcept;

    std::uint32_t state_ = 0x50000;
};

} // namespace tamarik
