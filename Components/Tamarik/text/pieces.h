#pragma once
// Pieces of texts. A text is a sequence of UTF-16 units, as the language sees it; the functions with B at the end see its
// bytes, low byte first, of which there may be an odd number. Results refer to the argument. Positions start at 1; negative
// lengths and a start below 1 are error 5.
#include "Basic/types.h"
#include <limits>
#include <string_view>

namespace tamarik {

using basic::Byte;
using basic::Double;
using basic::Integer;
using basic::Long;

inline constexpr Long kToTheEnd = std::numeric_limits<Long>::max();

std::u16string_view Left(std::u16string_view text, Long length);
std::string_view LeftB(std::string_view bytes, Long length);

std::u16string_view Right(std::u16string_view text, Long length);
std::string_view RightB(std::string_view bytes, Long length);

/// "" if `start` is beyond the end.
std::u16string_view Mid(std::u16string_view text, Long start, Long length = kToTheEnd);
std::string_view MidB(std::string_view bytes, Long start, Long length = kToTheEnd);

/// Remove blanks, but not tabs and line ends.
std::u16string_view Trim(std::u16string_view text);
std::u16string_view LTrim(std::u16string_view text);
std::u16string_view RTrim(std::u16string_view text);

} // namespace tamarik
