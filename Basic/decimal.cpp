#include "Basic/decimal.h"
#include "Basic/elementary/real_digits.h"
#include "Basic/runtime_error.h"
#include <algorithm>
#include <limits>
#include <utility>

namespace basic {

namespace {

constexpr Long kExponentLimit = 100'000'000;

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isWhite(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
char smallLetter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool take(std::string_view& text, char wanted) {
    if (text.empty() || smallLetter(text.front()) != wanted) return false;
    text.remove_prefix(1);
    return true;
}

/// Removes and returns the exponent after a mantissa; 0 if there is none.
Long readExponent(std::string_view& text) {
    std::string_view rest = text;
    if (!take(rest, 'e') && !take(rest, 'd')) return 0;
    const bool negative = take(rest, '-');
    if (!negative) take(rest, '+');
    if (rest.empty() || !isDigit(rest.front())) return 0;
    Long exponent = 0;
    for (; !rest.empty() && isDigit(rest.front()); rest.remove_prefix(1))
        exponent = std::min(exponent * 10 + (rest.front() - '0'), kExponentLimit);
    text = rest;
    return negative ? -exponent : exponent;
}

int digitValue(char c) {
    c = smallLetter(c);
    if (isDigit(c)) return c - '0';
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : 16;
}

/// The marks allowed around a number, each once.
struct Surroundings {
    bool sign = false, negative = false, currency = false, open = false, closed = false;

    /// Removes one mark. Returns false if there is none.
    bool takeFrom(std::string_view& text, bool before) {
        if (text.empty()) return false;
        const char c = text.front();
        const bool good = isWhite(c) || (c == '$' && once(currency)) || ((c == '+' || c == '-') && takeSign(c)) ||
                          (before && c == '(' && !sign && once(open)) || (!before && c == ')' && open && once(closed));
        if (good) text.remove_prefix(1);
        return good;
    }

private:
    static bool once(bool& flag) { return !std::exchange(flag, true); }
    bool takeSign(char c) {
        negative = negative || c == '-';
        return !open && once(sign);
    }
};

Decimal decimalOf(const BitPattern& pattern, int bits) {
    const std::uint64_t beyond = std::uint64_t{1} << bits;
    const bool negative =
        bits > 0 && !(bits == 16 && pattern.isLong) && pattern.value < beyond && pattern.value >= beyond / 2;
    const std::uint64_t size = negative ? beyond - pattern.value : pattern.value;
    return {negative, size == 0 ? "" : std::to_string(size), 0};
}

/// Compares the digits from `at` on with half a unit of the digit before: more (1), equal (0) or less (-1).
int compareWithHalf(std::string_view digits, std::size_t at) {
    if (digits[at] != '5') return digits[at] > '5' ? 1 : -1;
    return digits.find_first_not_of('0', at + 1) == digits.npos ? 0 : 1;
}

} // namespace

std::optional<Decimal> readUnsigned(std::string_view& text, bool grouped) {
    Decimal number;
    bool any = false, decimal = false;
    Long decimals = 0;
    for (; !text.empty(); text.remove_prefix(1)) {
        const char c = text.front();
        if (isDigit(c)) {
            if (c != '0' || !number.digits.empty()) number.digits += c;
            decimals += decimal;
            any = true;
        } else if (c == '.' && !decimal)
            decimal = true;
        else if (!(c == ',' && grouped && any && !decimal))
            break;
    }
    if (!any) return std::nullopt;
    number.exponent = readExponent(text) - std::min(decimals, kExponentLimit);
    return number;
}

std::optional<BitPattern> hexadecimalOrOctal(std::string_view& text) {
    std::string_view rest = text;
    const bool hexadecimal = take(rest, 'h');
    if (!hexadecimal && !take(rest, 'o')) return std::nullopt;
    const unsigned base = hexadecimal ? 16 : 8;
    BitPattern pattern;
    const std::size_t before = rest.size();
    for (; !rest.empty() && digitValue(rest.front()) < int(base); rest.remove_prefix(1)) {
        if (pattern.value > std::numeric_limits<std::uint64_t>::max() / base) throw RuntimeError(kOverflow);
        pattern.value = pattern.value * base + unsigned(digitValue(rest.front()));
    }
    if (rest.size() == before) return std::nullopt;
    pattern.isLong = take(rest, '&');
    text = rest;
    return pattern;
}

std::optional<Decimal> readNumber(std::string_view text, int bits) {
    Surroundings around;
    while (around.takeFrom(text, true)) {}
    std::optional<Decimal> number;
    if (take(text, '&')) {
        const auto pattern = hexadecimalOrOctal(text);
        if (pattern) number = decimalOf(*pattern, bits);
    } else
        number = readUnsigned(text, true);
    while (around.takeFrom(text, false)) {}
    if (!number || !text.empty() || around.open != around.closed) return std::nullopt;
    if (around.negative || around.open) number->negative = !number->negative;
    return number;
}

Double toDouble(const Decimal& number) {
    if (number.digits.empty()) return 0;
    const std::string text = number.digits + 'e' + std::to_string(number.exponent);
    Double value = 0;
    if (!readReal(text, value)) {
        if (static_cast<std::int64_t>(number.digits.size()) + number.exponent > 0) throw RuntimeError(kOverflow);
        return 0;
    }
    return number.negative ? -value : value;
}

Currency toCurrency(const Decimal& number) {
    constexpr std::int64_t kDecimals = 4, kMostDigits = 19;
    const std::string& digits = number.digits;
    const auto size = static_cast<std::int64_t>(digits.size());
    const std::int64_t whole = size + number.exponent + kDecimals; // the digits that Currency keeps
    if (digits.empty() || whole < 0) return {};
    if (whole > kMostDigits) throw RuntimeError(kOverflow);
    std::uint64_t magnitude = 0;
    for (std::int64_t i = 0; i < whole; ++i)
        magnitude =
            magnitude * 10 + static_cast<std::uint64_t>(i < size ? digits[static_cast<std::size_t>(i)] - '0' : 0);
    if (whole < size) {
        const int half = compareWithHalf(digits, static_cast<std::size_t>(whole));
        magnitude += half > 0 || (half == 0 && magnitude % 2 == 1);
    }
    constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (magnitude > kMost + number.negative) throw RuntimeError(kOverflow);
    return {static_cast<std::int64_t>(number.negative ? 0 - magnitude : magnitude)};
}

} // namespace basic
