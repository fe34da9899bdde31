#include "Components/Tamarik/numbers/decimal96.h"
#include "Basic/conversions.h"
#include "Basic/decimal.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/numbers/decimal96_rounding.h"
#include <algorithm>
#include <utility>

namespace tamarik {

namespace {

/// What a conversion reads: digits that are not needed, because they only decide how to round, become a single one.
constexpr std::size_t kMostDigits = 60;

Decimal96 decimalOf(basic::Decimal number) {
    if (number.digits.empty()) return {};
    if (number.digits.size() > kMostDigits) {
        number.exponent += static_cast<basic::Long>(number.digits.size() - kMostDigits);
        const bool more = number.digits.find_first_not_of('0', kMostDigits) != std::string::npos;
        number.digits.resize(kMostDigits);
        if (more) number.digits.back() = '1';
    }
    const auto wholeDigits = static_cast<basic::Long>(number.digits.size()) + number.exponent;
    if (wholeDigits > kMostDecimals + 2) throw basic::RuntimeError(basic::kOverflow);
    if (wholeDigits < -kMostDecimals) return {};
    Wide whole;
    for (const char digit : number.digits) whole.multiplyAdd(10, static_cast<std::uint32_t>(digit - '0'));
    multiplyByPower(whole, number.exponent);
    return fitted(whole, std::max(0, -number.exponent), number.negative);
}

Decimal96 fromText(const std::string& text) { return decimalOf(*basic::readNumber(text)); }

} // namespace

Decimal96::Decimal96(std::int64_t number) noexcept : negative_(number < 0) {
    const std::uint64_t size = number < 0 ? 0 - static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
    limbs_ = {static_cast<std::uint32_t>(size), static_cast<std::uint32_t>(size >> 32), 0};
}

Decimal96::Decimal96(basic::Currency number) noexcept : Decimal96(number.scaled) {
    int scale = 4;
    Wide whole(limbs_);
    for (Wide shorter = whole; scale > 0 && shorter.divide(10) == 0; --scale) whole = shorter;
    *this = Decimal96({whole.limb(0), whole.limb(1), 0}, scale, negative_);
}

Decimal96::Decimal96(Limbs limbs, int scale, bool negative) noexcept
    : limbs_(limbs), scale_(static_cast<std::int8_t>(scale)), negative_(negative && !isZero()) {}

Decimal96 Decimal96::fromDouble(double number) {
    if (!(number > -1e29 && number < 1e29)) throw basic::RuntimeError(basic::kOverflow);
    return fromText(basic::CStr(number));
}

Decimal96 Decimal96::fromSingle(float number) {
    if (!(number > -1e29F && number < 1e29F)) throw basic::RuntimeError(basic::kOverflow);
    return fromText(basic::CStr(number));
}

Decimal96 Decimal96::parse(std::string_view text) {
    if (auto number = basic::readNumber(text, 32)) return decimalOf(*std::move(number));
    throw basic::RuntimeError(basic::kTypeMismatch);
}

double Decimal96::toDouble() const { return basic::CDbl(text()); }

basic::Currency Decimal96::toCurrency() const { return basic::CCur(text()); }

std::string Decimal96::text() const {
    std::string digits;
    for (Wide rest(limbs_); !rest.isZero();) digits += static_cast<char>('0' + rest.divide(10));
    const auto decimals = static_cast<std::size_t>(scale_);
    if (digits.size() <= decimals) digits.resize(decimals + 1, '0');
    std::reverse(digits.begin(), digits.end());
    if (decimals > 0) {
        digits.insert(digits.size() - decimals, ".");
        digits.erase(digits.find_last_not_of('0') + 1);
        if (digits.back() == '.') digits.pop_back();
    }
    return negative_ ? "-" + digits : digits;
}

} // namespace tamarik
