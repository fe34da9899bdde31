#include "Basic/arithmetic.h"
#include "Basic/conversions.h"
#include "Basic/elementary/elementary.h"
#include <cmath>

namespace basic {

namespace {

Double finiteOrOverflow(Double result) {
    if (!std::isfinite(result)) throw RuntimeError(kOverflow);
    return result;
}

struct Product {
    std::uint64_t high, low;
};

Product multiply(std::uint64_t a, std::uint64_t b) {
    constexpr std::uint64_t kHalf = 0xFFFFFFFF;
    const std::uint64_t low = (a & kHalf) * (b & kHalf);
    const std::uint64_t first = (a >> 32) * (b & kHalf) + (low >> 32);
    const std::uint64_t second = (a & kHalf) * (b >> 32) + (first & kHalf);
    return {(a >> 32) * (b >> 32) + (first >> 32) + (second >> 32), (second << 32) | (low & kHalf)};
}

/// Divides by 10000 in steps of 32 bits and rounds halves to even. Error 6 for more than 64 bits.
std::uint64_t tenThousandth(Product product) {
    constexpr std::uint64_t kScale = 10000;
    if (product.high >= kScale) throw RuntimeError(kOverflow);
    const std::uint64_t upper = (product.high << 32) | (product.low >> 32);
    const std::uint64_t lower = ((upper % kScale) << 32) | (product.low & 0xFFFFFFFF);
    const std::uint64_t quotient = ((upper / kScale) << 32) | (lower / kScale), rest = lower % kScale;
    const bool up = rest > kScale / 2 || (rest == kScale / 2 && quotient % 2 == 1);
    return quotient + up;
}

std::uint64_t magnitude(std::int64_t number) {
    return number < 0 ? 0 - static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
}

std::int64_t withSign(std::uint64_t size, bool isNegative) {
    constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (size > kMost + isNegative) throw RuntimeError(kOverflow);
    return static_cast<std::int64_t>(isNegative ? 0 - size : size);
}

} // namespace

Single toSingle(Double result) { return CSng(result); }

Double Add(Double a, Double b) { return finiteOrOverflow(a + b); }
Double Subtract(Double a, Double b) { return finiteOrOverflow(a - b); }
Double Multiply(Double a, Double b) { return finiteOrOverflow(a * b); }

Currency Add(Currency a, Currency b) {
    std::int64_t sum;
    if (__builtin_add_overflow(a.scaled, b.scaled, &sum)) throw RuntimeError(kOverflow);
    return {sum};
}

Currency Subtract(Currency a, Currency b) {
    std::int64_t difference;
    if (__builtin_sub_overflow(a.scaled, b.scaled, &difference)) throw RuntimeError(kOverflow);
    return {difference};
}

Currency Multiply(Currency a, Currency b) {
    const auto size = tenThousandth(multiply(magnitude(a.scaled), magnitude(b.scaled)));
    return {withSign(size, (a.scaled < 0) != (b.scaled < 0))};
}

Currency Negate(Currency a) { return Subtract(Currency{}, a); }

Double Power(Double base, Double exponent) {
    const bool undefined = (base < 0 && exponent != std::trunc(exponent)) || (base == 0 && exponent < 0);
    if (undefined) throw RuntimeError(kInvalidProcedureCall);
    if (base == 0) return exponent == 0 ? 1 : 0;
    const Double size = finiteOrOverflow(elementary::power(std::abs(base), exponent));
    return base < 0 && std::fmod(exponent, 2) != 0 ? -size : size;
}

Double Divide(Double a, Double b) {
    if (b == 0) throw RuntimeError(a == 0 ? kOverflow : kDivisionByZero);
    return finiteOrOverflow(a / b);
}

} // namespace basic
