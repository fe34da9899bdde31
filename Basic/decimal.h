#pragma once
// Parsing of numbers by the rules of VB, exact until they are converted to a type. The basis of the conversions.
#include "Basic/types.h"
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace basic {

/// A number as written: digits times ten to the power of `exponent`, which is limited to +-100,000,000.
struct Decimal {
    bool negative = false;
    std::string digits; // without leading zeros; empty for zero
    Long exponent = 0;
};

/// Error 6 for an overflow; an underflow is 0.
Double toDouble(const Decimal& number);

/// Rounds to the nearest ten-thousandth, halves to even. Error 6 for an overflow.
Currency toCurrency(const Decimal& number);

/// Parses a whole text as an en-US number; nothing if it is not one. Allowed around the digits, in any order: white
/// space, one sign, "$", and parentheses for a negative number. "," may occur anywhere before the point. The exponent's
/// letter is E or D. &H and &O numbers are bit patterns of `bits` (16 or 32): &HFFFF is -1 in 16 bits and 65535 in 32.
/// Longer patterns, and all patterns if `bits` is 0, have their plain value.
std::optional<Decimal> readNumber(std::string_view text, int bits = 0);

/// A bit pattern as written.
struct BitPattern {
    std::uint64_t value = 0;
    /// Ends in "&".
    bool isLong = false;
};

/// Removes the rest of a number after "&" from the start of `text` ("HFF", "o17", "H8000&") and returns it. Nothing if
/// there is no digit; error 6 for more than 64 bits.
std::optional<BitPattern> hexadecimalOrOctal(std::string_view& text);

/// Removes digits, point and exponent from the start of `text` and returns the number. `grouped` allows ",". Nothing if
/// `text` does not start with a number.
std::optional<Decimal> readUnsigned(std::string_view& text, bool grouped);

} // namespace basic
