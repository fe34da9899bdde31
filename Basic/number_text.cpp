#include "Basic/number_text.h"
#include "Basic/conversions.h"
#include "Basic/decimal.h"
#include "Basic/runtime_error.h"
#include <charconv>

namespace basic {

namespace {

template <class Unsigned>
std::string digitsInBase(Unsigned number, int base) {
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, number, base).ptr;
    std::string text(digits, end);
    for (char& c : text) c = c >= 'a' ? static_cast<char>(c - 32) : c;
    return text;
}

std::string withPlaceForSign(std::string text) {
    const bool negative = text.front() == '-';
    if (!negative) text.insert(text.begin(), ' ');
    if (text.compare(1, 2, "0.") == 0) text.erase(1, 1);
    return text;
}

/// The start of a text without the characters that Val ignores, up to the first one that cannot be part of a number.
std::string numberBeginning(std::string_view text) {
    std::string seen;
    for (const char c : text) {
        if (c == ' ' || c == '\t' || c == '\n') continue;
        const bool part = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f') || c == 'H' ||
                          c == 'h' || c == 'O' || c == 'o' || c == '&' || c == '.' || c == '+' || c == '-';
        if (!part) break;
        seen += c;
    }
    return seen;
}

/// As for literals: an Integer up to FFFF, otherwise a Long; a final "&" makes it a Long.
Long literalValue(const BitPattern& pattern) {
    if (pattern.value > 0xFFFFFFFF) throw RuntimeError(kOverflow);
    const bool isLong = pattern.isLong || pattern.value > 0xFFFF;
    return isLong ? static_cast<Long>(pattern.value) : static_cast<Integer>(pattern.value);
}

} // namespace

std::string Hex(Integer number) { return digitsInBase(static_cast<std::uint16_t>(number), 16); }
std::string Hex(Long number) { return digitsInBase(static_cast<std::uint32_t>(number), 16); }
std::string Oct(Integer number) { return digitsInBase(static_cast<std::uint16_t>(number), 8); }
std::string Oct(Long number) { return digitsInBase(static_cast<std::uint32_t>(number), 8); }

std::string Str(Long number) { return withPlaceForSign(CStr(number)); }
std::string Str(Single number) { return withPlaceForSign(CStr(number)); }
std::string Str(Double number) { return withPlaceForSign(CStr(number)); }
std::string Str(Currency number) { return withPlaceForSign(CStr(number)); }

Double Val(std::string_view text) {
    const std::string beginning = numberBeginning(text);
    std::string_view rest = beginning;
    const bool negative = !rest.empty() && rest.front() == '-';
    if (negative || (!rest.empty() && rest.front() == '+')) rest.remove_prefix(1);
    if (!rest.empty() && rest.front() == '&') {
        rest.remove_prefix(1);
        const auto pattern = hexadecimalOrOctal(rest);
        const Double value = pattern ? literalValue(*pattern) : 0;
        return negative ? -value : value;
    }
    auto number = readUnsigned(rest, false);
    if (!number) return 0;
    number->negative = negative;
    return toDouble(*number);
}

bool IsNumeric(std::string_view text) {
    return attempt([&] { (void)CDbl(text); }).Number == 0;
}

} // namespace basic
