#include "Basic/conversions.h"
#include "Basic/case_folding.h"
#include "Basic/decimal.h"
#include "Basic/elementary/real_digits.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"
#include <charconv>
#include <cmath>
#include <limits>

namespace basic {

namespace {

Decimal requiredNumber(std::string_view text, int bits = 0) {
    if (auto number = readNumber(text, bits)) return *std::move(number);
    throw RuntimeError(kTypeMismatch);
}

Double roundHalfToEven(Double number) {
    const Double below = std::floor(number), rest = number - below;
    if (rest != 0.5) return rest < 0.5 ? below : below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <class Whole>
Whole toWhole(const Convertible& value) {
    constexpr int kBits = std::numeric_limits<Whole>::is_signed ? 8 * sizeof(Whole) : 0;
    const Double number = value.text() ? toDouble(requiredNumber(*value.text(), kBits)) : value.number();
    const Double rounded = roundHalfToEven(number);
    const bool fits = rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max();
    if (!fits) throw RuntimeError(kOverflow);
    return static_cast<Whole>(rounded);
}

template <class Whole>
Whole magnitude(Whole number) {
    if (number == std::numeric_limits<Whole>::min()) throw RuntimeError(kOverflow);
    return static_cast<Whole>(number < 0 ? -number : number);
}

std::string withExponent(std::string digits, int exponent) {
    if (digits.size() > 1) digits.insert(1, ".");
    const std::string power = std::to_string(std::abs(exponent));
    return digits + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
}

/// Writes the digits d1d2d3..., meaning d1.d2d3... * 10^`exponent`, without an exponent if `most` digits are enough.
std::string layOut(std::string digits, int exponent, int most) {
    const int count = static_cast<int>(digits.size());
    if (exponent >= most || count - 1 - exponent > most) return withExponent(std::move(digits), exponent);
    if (exponent < 0) return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    const auto whole = static_cast<std::size_t>(exponent + 1);
    if (digits.size() <= whole) return digits.append(whole - digits.size(), '0');
    return digits.insert(whole, ".");
}

/// Exact for the exponents from 0 to 22.
Double powerOfTen(Long exponent) {
    Double power = 1;
    for (; exponent > 0; --exponent) power *= 10;
    return power;
}

std::string realText(Double number, int significant) {
    if (std::isnan(number)) return "-1.#IND";
    if (std::isinf(number)) return number < 0 ? "-1.#INF" : "1.#INF";
    if (number == 0) return "0";
    const std::string text = scientificText(std::abs(number), significant);
    const std::size_t letter = text.find('e');
    int exponent = 0;
    const std::size_t sign = text[letter + 1] == '+' ? 2 : 1;
    std::from_chars(text.data() + letter + sign, text.data() + text.size(), exponent);
    std::string digits = text.substr(0, letter);
    digits.erase(1, 1); // the point
    digits.erase(digits.find_last_not_of('0') + 1);
    return (number < 0 ? "-" : "") + layOut(std::move(digits), exponent, significant);
}

} // namespace

Double Convertible::number() const { return text_ ? toDouble(requiredNumber(*text_)) : number_; }

bool CBool(const Convertible& value) {
    if (value.text()) {
        const std::string word = Trim(*value.text());
        // With marks as Write # writes them.
        if (equalNoCase(word, "True") || equalNoCase(word, "#TRUE#")) return true;
        if (equalNoCase(word, "False") || equalNoCase(word, "#FALSE#")) return false;
    }
    return value.number() != 0;
}

Byte CByte(const Convertible& value) {
    if (value.isBoolean()) return value.number() == 0 ? 0 : 255;
    return toWhole<Byte>(value);
}
Integer CInt(const Convertible& value) { return toWhole<Integer>(value); }
Long CLng(const Convertible& value) { return toWhole<Long>(value); }
Double CDbl(const Convertible& value) { return value.number(); }

Single CSng(const Convertible& value) {
    const Double number = value.number();
    // From half a step beyond the largest Single on, values round to infinity.
    if (std::abs(number) >= 0x1.FFFFFFp127) throw RuntimeError(kOverflow);
    return static_cast<Single>(number);
}

Currency CCur(const Convertible& value) {
    if (value.text()) return toCurrency(requiredNumber(*value.text()));
    constexpr Double kBeyond = 9223372036854775808.0;
    const Double scaled = roundHalfToEven(value.number() * 10000);
    if (!(scaled >= -kBeyond && scaled < kBeyond)) throw RuntimeError(kOverflow);
    return {static_cast<std::int64_t>(scaled)};
}

std::string CStr(Byte number) { return std::to_string(number); }
std::string CStr(Integer number) { return std::to_string(number); }
std::string CStr(Long number) { return std::to_string(number); }
std::string CStr(Single number) { return realText(number, 7); }
std::string CStr(Double number) { return realText(number, 15); }

std::string CStr(Currency number) {
    const std::uint64_t size =
        number.scaled < 0 ? 0 - static_cast<std::uint64_t>(number.scaled) : static_cast<std::uint64_t>(number.scaled);
    std::string decimals = std::to_string(10000 + size % 10000);
    decimals[0] = '.';
    decimals.erase(decimals.find_last_not_of('0') + 1);
    if (decimals == ".") decimals.clear();
    return (number.scaled < 0 ? "-" : "") + std::to_string(size / 10000) + decimals;
}

Double Fix(const Convertible& value) { return std::trunc(value.number()); }
Double Int(const Convertible& value) { return std::floor(value.number()); }

Double Round(const Convertible& value, Long digits) {
    if (digits < 0 || digits > 22) throw RuntimeError(kInvalidProcedureCall);
    const Double number = value.number(), scale = powerOfTen(digits);
    const Double scaled = number * scale;
    // From 2^52 on a Double has no decimals to round.
    return std::abs(scaled) < 0x1p52 ? roundHalfToEven(scaled) / scale : number;
}

Integer Sgn(const Convertible& value) {
    const Double number = value.number();
    return static_cast<Integer>((number > 0) - (number < 0));
}

Integer Abs(Integer number) { return magnitude(number); }
Long Abs(Long number) { return magnitude(number); }
Double Abs(Double number) noexcept { return std::abs(number); }

} // namespace basic
