#pragma once
// The bits of doubles, and sums of two doubles that are more precise than one.
#include <bit>
#include <cstdint>
#include <limits>

namespace basic::elementary {

/// The number without the lower half of its bits.
inline double upperHalf(double x) noexcept {
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(x) & 0xFFFFFFFF00000000);
}

inline constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// high + low, of which `low` is less than a unit in the last place of `high`.
struct DoublePair {
    double high = 0, low = 0;
};

/// The exact sum of two numbers, of which `a` is not smaller.
inline DoublePair sumOf(double a, double b) noexcept {
    const double sum = a + b;
    return {sum, b - (sum - a)};
}

/// The product of two numbers, by Dekker's and Veltkamp's method.
inline DoublePair productOf(double a, double b) noexcept {
    constexpr double kSplit = 134217729; // 2^27 + 1
    const double product = a * b, splitA = kSplit * a, splitB = kSplit * b;
    const double highA = splitA - (splitA - a), lowA = a - highA, highB = splitB - (splitB - b), lowB = b - highB;
    return {product, ((highA * highB - product) + highA * lowB + lowA * highB) + lowA * lowB};
}

} // namespace basic::elementary
