#pragma once
// Numbers as texts and back, by VB's functions that know no country's customs.
#include "Basic/types.h"
#include <string>
#include <string_view>

namespace basic {

/// A number's hexadecimal or octal digits: of a negative one those of its two's complement in its own width.
std::string Hex(Integer number);
std::string Hex(Long number);
std::string Oct(Integer number);
std::string Oct(Long number);

/// As CStr, with a blank in the place of the sign of a positive number and no zero before the point.
std::string Str(Long number);
std::string Str(Single number);
std::string Str(Double number);
std::string Str(Currency number);

/// The number that a text begins with, 0 for none. Blanks, tabs and line feeds count for nothing, even between
/// digits; the exponent's letter is E or D; &H and &O numbers are read as literals, so that &HFFFF is -1.
/// Error 6 for a number too large, no other.
Double Val(std::string_view text);

/// Whether CDbl takes the text.
bool IsNumeric(std::string_view text);

} // namespace basic
