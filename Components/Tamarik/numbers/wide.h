#pragma once
// Whole numbers of up to 320 bits, for the arithmetic of Decimal96, in steps of 32 bits that every machine has.
#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tamarik {

/// Limbs of 32 bits, the lowest first.
class Wide {
public:
    static constexpr int kLimbs = 10;

    Wide() = default;
    explicit Wide(std::span<const std::uint32_t> limbs);

    std::uint32_t limb(int index) const { return limbs_[static_cast<std::size_t>(index)]; }
    bool isZero() const { return bits() == 0; }
    bool isOdd() const { return limbs_[0] & 1; }
    /// The number of bits without zeros at the top.
    int bits() const;

    /// Multiplies by a small number and adds another. The result has to fit.
    Wide& multiplyAdd(std::uint32_t factor, std::uint32_t addend = 0);
    /// Divides by a small number and returns the remainder.
    std::uint32_t divide(std::uint32_t divisor);

    Wide& operator+=(const Wide& other);
    /// `other` is not larger.
    Wide& operator-=(const Wide& other);
    Wide& shiftLeft(int bits);
    Wide& shiftRightOne();

    /// The product of two numbers that together have no more bits than a Wide.
    friend Wide operator*(const Wide& a, const Wide& b);
    friend bool operator==(const Wide&, const Wide&) = default;
    friend std::strong_ordering operator<=>(const Wide& a, const Wide& b);

private:
    std::array<std::uint32_t, kLimbs> limbs_{};
};

struct Quotient {
    Wide quotient, remainder;
};

/// `b` is not 0.
Quotient divide(const Wide& a, const Wide& b);

/// Multiplies by ten to the power of `exponent`.
Wide& multiplyByPower(Wide& number, int exponent);

} // namespace tamarik
