#include "Basic/runtime_error.h"
#include "Components/Tamarik/numbers/decimal96.h"
#include "Components/Tamarik/numbers/decimal96_rounding.h"
#include <algorithm>

namespace tamarik {

namespace {

/// Two numbers with the same scale.
struct Aligned {
    Wide a, b;
    int scale;

    Aligned(const Decimal96& first, const Decimal96& second)
        : a(first.limbs()), b(second.limbs()), scale(std::max(first.scale(), second.scale())) {
        multiplyByPower(a, scale - first.scale());
        multiplyByPower(b, scale - second.scale());
    }
};

void requireDivisor(const Decimal96& divisor) {
    if (divisor.isZero()) throw basic::RuntimeError(basic::kDivisionByZero);
}

/// Drops zeros at the end of the decimals, but keeps `least` decimals.
Decimal96 shortened(const Decimal96& number, int least) {
    Wide whole(number.limbs());
    int scale = number.scale();
    for (Wide shorter = whole; scale > least && shorter.divide(10) == 0; --scale) whole = shorter;
    return {{whole.limb(0), whole.limb(1), whole.limb(2)}, scale, number.isNegative()};
}

Quotient wholeQuotient(const Decimal96& a, const Decimal96& b) {
    requireDivisor(b);
    return divide(Wide(a.limbs()), Wide(b.limbs()));
}

Decimal96 whole(const Wide& number, bool negative) { return fitted(number, 0, negative); }

std::strong_ordering reversed(std::strong_ordering order) { return 0 <=> order; }

} // namespace

Decimal96 operator+(const Decimal96& a, const Decimal96& b) {
    Aligned both(a, b);
    if (a.isNegative() == b.isNegative()) return fitted(both.a += both.b, both.scale, a.isNegative());
    if (both.a >= both.b) return fitted(both.a -= both.b, both.scale, a.isNegative());
    return fitted(both.b -= both.a, both.scale, b.isNegative());
}

Decimal96 operator-(const Decimal96& a, const Decimal96& b) { return a + -b; }

Decimal96 operator*(const Decimal96& a, const Decimal96& b) {
    return fitted(Wide(a.limbs()) * Wide(b.limbs()), a.scale() + b.scale(), a.isNegative() != b.isNegative());
}

Decimal96 operator/(const Decimal96& a, const Decimal96& b) {
    requireDivisor(b);
    // With this many digits more, the quotient has at least 28 decimals, or more bits than the result can keep.
    constexpr int kMore = kMostDecimals + 1;
    Wide dividend(a.limbs());
    const auto [quotient, rest] = divide(multiplyByPower(dividend, kMore + b.scale()), Wide(b.limbs()));
    const auto below = rest.isZero() ? Below::Nothing : Below::Something;
    return shortened(fitted(quotient, a.scale() + kMore, a.isNegative() != b.isNegative(), below),
                     std::max(0, a.scale() - b.scale()));
}

Decimal96 integerDivide(const Decimal96& a, const Decimal96& b) {
    const auto quotient = wholeQuotient(a.rounded(0), b.rounded(0)).quotient;
    return whole(quotient, a.isNegative() != b.isNegative());
}

Decimal96 mod(const Decimal96& a, const Decimal96& b) {
    return whole(wholeQuotient(a.rounded(0), b.rounded(0)).remainder, a.isNegative());
}

Decimal96 Decimal96::rounded(int decimals) const {
    if (decimals >= scale_) return *this;
    return fitted(roundedDown(Wide(limbs_), scale_ - decimals), decimals, negative_);
}

Decimal96 Decimal96::fix() const {
    Wide number(limbs_);
    for (int i = 0; i < scale_; ++i) number.divide(10);
    return whole(number, negative_);
}

Decimal96 Decimal96::floor() const {
    const Decimal96 truncated = fix();
    return negative_ && truncated != *this ? truncated - Decimal96(1) : truncated;
}

std::strong_ordering operator<=>(const Decimal96& a, const Decimal96& b) {
    if (a.isNegative() != b.isNegative()) return b.isNegative() <=> a.isNegative();
    const Aligned both(a, b);
    const auto order = both.a <=> both.b;
    return a.isNegative() ? reversed(order) : order;
}

bool operator==(const Decimal96& a, const Decimal96& b) { return (a <=> b) == 0; }

} // namespace tamarik
