#include "Components/Tamarik/numbers/wide.h"
#include <algorithm>
#include <bit>

namespace tamarik {

namespace {
constexpr int kLimbBits = 32;
}

Wide::Wide(std::span<const std::uint32_t> limbs) { std::copy(limbs.begin(), limbs.end(), limbs_.begin()); }

int Wide::bits() const {
    for (int i = kLimbs - 1; i >= 0; --i)
        if (limb(i)) return i * kLimbBits + std::bit_width(limb(i));
    return 0;
}

Wide& Wide::multiplyAdd(std::uint32_t factor, std::uint32_t addend) {
    std::uint64_t carry = addend;
    for (auto& limb : limbs_) {
        carry += std::uint64_t{limb} * factor;
        limb = static_cast<std::uint32_t>(carry);
        carry >>= kLimbBits;
    }
    return *this;
}

std::uint32_t Wide::divide(std::uint32_t divisor) {
    std::uint64_t rest = 0;
    for (auto limb = limbs_.rbegin(); limb != limbs_.rend(); ++limb) {
        rest = rest << kLimbBits | *limb;
        *limb = static_cast<std::uint32_t>(rest / divisor);
        rest %= divisor;
    }
    return static_cast<std::uint32_t>(rest);
}

Wide& Wide::operator+=(const Wide& other) {
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < kLimbs; ++i) {
        carry += std::uint64_t{limbs_[i]} + other.limbs_[i];
        limbs_[i] = static_cast<std::uint32_t>(carry);
        carry >>= kLimbBits;
    }
    return *this;
}

Wide& Wide::operator-=(const Wide& other) {
    std::uint64_t borrow = 0;
    for (std::size_t i = 0; i < kLimbs; ++i) {
        const std::uint64_t difference = std::uint64_t{limbs_[i]} - other.limbs_[i] - borrow;
        limbs_[i] = static_cast<std::uint32_t>(difference);
        borrow = difference >> 63;
    }
    return *this;
}

Wide& Wide::shiftLeft(int bits) {
    const auto limbs = static_cast<std::size_t>(bits / kLimbBits);
    std::copy_backward(limbs_.begin(), limbs_.end() - static_cast<std::ptrdiff_t>(limbs), limbs_.end());
    std::fill_n(limbs_.begin(), limbs, 0U);
    return multiplyAdd(std::uint32_t{1} << bits % kLimbBits);
}

Wide& Wide::shiftRightOne() {
    for (std::size_t i = 0; i < kLimbs; ++i) {
        const std::uint32_t above = i + 1 < kLimbs ? limbs_[i + 1] : 0;
        limbs_[i] = limbs_[i] >> 1 | above << (kLimbBits - 1);
    }
    return *this;
}

Wide operator*(const Wide& a, const Wide& b) {
    Wide product;
    for (int i = Wide::kLimbs - 1; i >= 0; --i) {
        product.shiftLeft(kLimbBits);
        Wide part = b;
        product += part.multiplyAdd(a.limb(i));
    }
    return product;
}

std::strong_ordering operator<=>(const Wide& a, const Wide& b) {
    return std::lexicographical_compare_three_way(a.limbs_.rbegin(), a.limbs_.rend(), b.limbs_.rbegin(),
                                                  b.limbs_.rend());
}

Quotient divide(const Wide& a, const Wide& b) {
    if (b.bits() <= kLimbBits) {
        Wide quotient = a;
        const std::uint32_t rest[] = {quotient.divide(b.limb(0))};
        return {quotient, Wide(rest)};
    }
    Quotient result{{}, a};
    const int shifts = a.bits() - b.bits();
    if (shifts < 0) return result;
    Wide divisor = b;
    divisor.shiftLeft(shifts);
    for (int i = shifts; i >= 0; --i, divisor.shiftRightOne()) {
        const bool fits = divisor <= result.remainder;
        result.quotient.multiplyAdd(2, fits);
        if (fits) result.remainder -= divisor;
    }
    return result;
}

Wide& multiplyByPower(Wide& number, int exponent) {
    constexpr std::uint32_t kBillion = 1'000'000'000;
    for (; exponent >= 9; exponent -= 9) number.multiplyAdd(kBillion);
    for (; exponent > 0; --exponent) number.multiplyAdd(10);
    return number;
}

} // namespace tamarik
