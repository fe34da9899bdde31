#pragma once
// VB's Decimal: a whole number of 96 bits, divided by a power of ten from 0 to 28, with a sign.
#include "Basic/types.h"
#include <array>
#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace tamarik {

inline constexpr int kMostDecimals = 28;

/// Limbs are 32 bits, the lowest first. Zero may have a scale, which its sign does not survive.
class Decimal96 {
public:
    using Limbs = std::array<std::uint32_t, 3>;

    Decimal96() = default;
    Decimal96(std::int64_t number) noexcept;
    Decimal96(basic::Currency number) noexcept;
    /// The parts of a stored value; `scale` is at most 28.
    Decimal96(Limbs limbs, int scale, bool negative) noexcept;

    /// Rounds to 15 significant digits. Error 6 if it is too large.
    static Decimal96 fromDouble(double number);
    /// Rounds to 7 significant digits.
    static Decimal96 fromSingle(float number);
    /// Parses a number as CDbl does, but keeps up to 28 decimals; what is beyond them is rounded, halves to even. Errors 13
    /// and 6.
    static Decimal96 parse(std::string_view text);

    const Limbs& limbs() const noexcept { return limbs_; }
    int scale() const noexcept { return scale_; }
    bool isNegative() const noexcept { return negative_; }
    bool isZero() const noexcept { return (limbs_[0] | limbs_[1] | limbs_[2]) == 0; }

    double toDouble() const;
    /// Rounds to the nearest ten-thousandth, halves to even. Error 6.
    basic::Currency toCurrency() const;
    /// All its digits, without zeros at the end of the decimals.
    std::string text() const;

    Decimal96 operator-() const noexcept { return {limbs_, scale_, !negative_}; }

    /// Rounds to `decimals`, which are not negative, halves to even.
    Decimal96 rounded(int decimals) const;
    /// Fix truncates; Int rounds down.
    Decimal96 fix() const;
    Decimal96 floor() const;

private:
    Limbs limbs_{};
    std::int8_t scale_ = 0;
    bool negative_ = false;
};

/// Error 6 if the result has more than 96 bits before its decimals; decimals that do not fit are rounded, halves to even.
Decimal96 operator+(const Decimal96& a, const Decimal96& b);
Decimal96 operator-(const Decimal96& a, const Decimal96& b);
Decimal96 operator*(const Decimal96& a, const Decimal96& b);

/// Error 11 for a divisor of 0. A quotient that ends has no more decimals than it needs.
Decimal96 operator/(const Decimal96& a, const Decimal96& b);

/// VB's \ for Decimals: the truncated quotient of the operands, rounded to whole numbers. Error 11 as above.
Decimal96 integerDivide(const Decimal96& a, const Decimal96& b);
/// VB's Mod: the remainder of \, with the sign of `a`.
Decimal96 mod(const Decimal96& a, const Decimal96& b);

std::strong_ordering operator<=>(const Decimal96& a, const Decimal96& b);
bool operator==(const Decimal96& a, const Decimal96& b);

} // namespace tamarik
