#include "Basic/elementary/reduction.h"
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace basic::elementary {

namespace {

/// The bits of 2 / pi after the point.
constexpr std::uint32_t kTwoOverPi[] = {
    0xA2F9836E, 0x4E441529, 0xFC2757D1, 0xF534DDC0, 0xDB629599, 0x3C439041, 0xFE5163AB, 0xDEBBC561,
    0xB7246E3A, 0x424DD2E0, 0x06492EEA, 0x09D1921C, 0xFE1DEB1C, 0xB129A73E, 0xE88235F5, 0x2EBB4484,
    0xE99C7026, 0xB45F7E41, 0x3991D639, 0x835339F4, 0x9C845F8B, 0xBDF9283B, 0x1FF897FF, 0xDE05980F,
    0xEF2F118B, 0x5A0A6D1F, 0x6D367ECF, 0x27CB09B7, 0x4F463F66, 0x9E5FEA2D, 0x7527BAC7, 0xEBE5F17B,
    0x3D0739F7, 0x8A5292EA, 0x6BFB5FB1, 0x1F8D5D08, 0x56033046, 0xFC7B6BAB, 0xF0CFBC20};
constexpr DoublePair kHalfPi = {0x1.921FB54442D18p0, 0x1.1A62633145C07p-54};
constexpr int kMantissa = 53;

/// 32 bits of 2 / pi from bit `first` on, which is 1 for the highest one and may be negative.
std::uint32_t bitsFrom(int first) noexcept {
    constexpr int kBefore = 96;
    const int at = first - 1 + kBefore, word = at / 32 - kBefore / 32, shift = at % 32;
    const auto wordAt = [](int index) -> std::uint64_t { return index < 0 ? 0 : kTwoOverPi[index]; };
    return static_cast<std::uint32_t>((wordAt(word) << 32 | wordAt(word + 1)) >> (32 - shift));
}

/// A number from 0 to 1 in 192 bits, the lowest first, after 32 bits of the whole number.
using Turns = std::array<std::uint32_t, 7>;

/// Multiplies mantissa * 2^exponent by 2 / pi. Of the whole number the lowest bits remain, which is enough for the quarter.
Turns turnsOf(std::uint64_t mantissa, int exponent) noexcept {
    constexpr int kWords = 9;
    // The bits before only contribute whole multiples of 2^32.
    const int first = exponent - 31;
    std::array<std::uint32_t, kWords + 2> product{};
    for (int i = 0; i < kWords; ++i) {
        const std::uint64_t bits = bitsFrom(first + 32 * (kWords - 1 - i));
        const auto at = static_cast<std::size_t>(i);
        std::uint64_t carry = bits * (mantissa & 0xFFFFFFFF) + product[at];
        product[at] = static_cast<std::uint32_t>(carry);
        carry = (carry >> 32) + bits * (mantissa >> 32) + product[at + 1];
        product[at + 1] = static_cast<std::uint32_t>(carry);
        product[at + 2] = static_cast<std::uint32_t>(carry >> 32);
    }
    Turns turns;
    // The last bit of the first word of 2 / pi counts 1: it is the lowest of the whole number.
    for (std::size_t i = 0; i < turns.size(); ++i) turns[i] = product[i + kWords - turns.size()];
    return turns;
}

void negate(Turns& turns) noexcept {
    std::uint64_t carry = 1;
    for (auto& word : turns) {
        carry += static_cast<std::uint32_t>(~word);
        word = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
}

/// The fraction, in two doubles.
DoublePair fractionOf(const Turns& turns) noexcept {
    std::size_t top = turns.size() - 2;
    while (top > 3 && turns[top] == 0) --top;
    const auto part = [&](std::size_t below) {
        return std::ldexp(static_cast<double>(turns[top - below]), 32 * (static_cast<int>(top - below) - 6));
    };
    const auto upper = sumOf(part(0), part(1)), lower = sumOf(part(2), part(3));
    const auto sum = sumOf(upper.high, upper.low + lower.high);
    return sumOf(sum.high, sum.low + lower.low);
}

} // namespace

ReducedAngle reduceAngle(double x) noexcept {
    int exponent;
    const double fraction = std::frexp(std::abs(x), &exponent);
    auto turns = turnsOf(static_cast<std::uint64_t>(std::ldexp(fraction, kMantissa)), exponent - kMantissa);
    const bool up = turns[5] >> 31;
    std::uint32_t quarter = turns[6] + up;
    if (up) negate(turns);
    const auto part = fractionOf(turns);
    const auto product = productOf(part.high, kHalfPi.high);
    auto rest = sumOf(product.high, product.low + (part.high * kHalfPi.low + part.low * kHalfPi.high));
    if (up != (x < 0)) rest = {-rest.high, -rest.low};
    return {(x < 0 ? 0 - quarter : quarter) & 3, rest};
}

} // namespace basic::elementary
