#pragma once
// VB's locale-independent functions for numbers and texts.
#include "Basic/types.h"
#include <string>
#include <string_view>

namespace basic {

/// Returns hexadecimal or octal digits; for a negative number those of its two's complement in the width of its type.
std::string Hex(Integer number);
std::string Hex(Long number);
std::string Oct(Integer number);
std::string Oct(Long number);

/// As CStr, but with a blank instead of a positive sign and without a zero before the point.
std::string Str(Long number);
std::string Str(Single number);
std::string Str(Double number);
std::string Str(Currency number);

/// Parses the number at the start of a text, 0 if there is none. Ignores blanks, tabs and line feeds, even between
/// digits. The exponent's letter is E or D. &H and &O numbers are parsed as literals: &HFFFF is -1.
/// Error 6 for an overflow; no other errors.
Double Val(std::string_view text);

/// True if CDbl accepts the text.
bool IsNumeric(std::string_view text);

} // namespace basic
