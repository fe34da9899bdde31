#pragma once
// Searches in texts. Positions and counts are in units, those of InStrB in bytes; positions start at 1.
#include "Basic/types.h"
#include "Components/Tamarik/text/letters.h"
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tamarik {

/// Returns the position of the first `what` at or after `start`, 0 if there is none. An empty `what` is found at `start`;
/// nothing is found in an empty text or from beyond its end. Error 5 for a start below 1.
basic::Long InStr(basic::Long start, std::u16string_view text, std::u16string_view what,
                  VbCompareMethod method = vbBinaryCompare);

/// The same over bytes; always binary.
basic::Long InStrB(basic::Long start, std::string_view bytes, std::string_view what);

/// Returns the position of the last `what` within the first `start` units (-1: all of them), 0 if there is none. An empty
/// `what` is found at `start`; nothing is found from beyond the end. Error 5 for a start of 0 or below -1.
basic::Long InStrRev(std::u16string_view text, std::u16string_view what, basic::Long start = -1,
                     VbCompareMethod method = vbBinaryCompare);

/// Splits a text at delimiters into at most `limit` pieces (-1: all), which refer to it; the last one keeps the rest. An
/// empty text has no pieces; an empty delimiter does not split. Error 5 for a limit below -1.
std::vector<std::u16string_view> Split(std::u16string_view text, std::u16string_view delimiter = u" ",
                                       basic::Long limit = -1, VbCompareMethod method = vbBinaryCompare);

/// Returns the text from `start` on, without the text before, with the first `count` occurrences (-1: all) of `what`
/// replaced. Error 5 for a start below 1 or a count below -1.
std::u16string Replace(std::u16string_view text, std::u16string_view what, std::u16string_view by,
                       basic::Long start = 1, basic::Long count = -1, VbCompareMethod method = vbBinaryCompare);

/// Returns the pieces that contain `what`, or those that do not.
std::vector<std::u16string> Filter(std::span<const std::u16string> pieces, std::u16string_view what,
                                   bool include = true, VbCompareMethod method = vbBinaryCompare);

} // namespace tamarik
