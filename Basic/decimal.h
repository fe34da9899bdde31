#pragma once
// Numbers as VB reads them in texts, exact until a type is asked for. The conversions stand on this.
#include "Basic/types.h"
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace basic {

/// A number as written: digits times ten to the power of `exponent`, which is kept within +-100,000,000.
struct Decimal {
    bool negative = false;
    std::string digits; // without leading zeros; empty for zero
    Long exponent = 0;
};

/// Error 6 for a number too large; one too small is 0.
Double toDouble(const Decimal& number);

/// To the nearest ten-thousandth, halves to the even one. Error 6 for a number too large.
Currency toCurrency(const Decimal& number);

/// A whole text as a number by the rules of en-US; nothing for a text that is none. In front and behind may stand, in
/// any order, white space, one sign, "$" and parentheses for a negative number; digits may be grouped by "," anywhere
/// before the point; the exponent's letter is E or D. &H and &O numbers are bit patterns of `bits` (16 or 32), so that
/// &HFFFF is -1 in 16 bits and 65535 in 32; a pattern that is longer, and any when `bits` is 0, is its plain value.
std::optional<Decimal> readNumber(std::string_view text, int bits = 0);

/// A bit pattern as it was written.
struct BitPattern {
    std::uint64_t value = 0;
    /// Ends in "&".
    bool isLong = false;
};

/// The number that stands behind "&" at the beginning of `text` ("HFF", "o17", "&H8000&" without its first "&").
/// `text` loses what was read. Nothing when no digit follows; error 6 beyond 64 bits.
std::optional<BitPattern> hexadecimalOrOctal(std::string_view& text);

/// The digits, point and exponent that `text` begins with, `grouped` by "," or not; `text` loses them. Nothing when
/// there is no digit.
std::optional<Decimal> readUnsigned(std::string_view& text, bool grouped);

} // namespace basic
