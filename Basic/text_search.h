#pragma once
// VB's search functions for texts. Positions and counts are in characters; positions start at 1.
#include "Basic/case_folding.h"
#include "Basic/types.h"
#include <string>
#include <string_view>
#include <vector>

namespace basic {

/// Returns the position of the first `what` at or after `start`, 0 if there is none. An empty `what` is found at
/// `start`; nothing is found in an empty text or from beyond its end. Error 5 for a start below 1.
Long InStr(Long start, std::string_view text, std::string_view what, VbCompareMethod compare = vbBinaryCompare);
Long InStr(std::string_view text, std::string_view what, VbCompareMethod compare = vbBinaryCompare);

/// Returns the position of the last `what` within the first `start` characters (-1: all of them), 0 if there is none.
/// An empty `what` is found at `start`; nothing is found from beyond the end of the text. Error 5 for a start of 0 or
/// below -1.
Long InStrRev(std::string_view text, std::string_view what, Long start = -1, VbCompareMethod compare = vbBinaryCompare);

/// Splits a text at delimiters into at most `limit` pieces (-1: all); the last one keeps the rest. An empty text has no
/// pieces; an empty delimiter does not split. Error 5 for a limit below -1.
std::vector<std::string> Split(std::string_view text, std::string_view delimiter = " ", Long limit = -1,
                               VbCompareMethod compare = vbBinaryCompare);

std::string Join(const std::vector<std::string>& pieces, std::string_view delimiter = " ");

/// Returns the text from `start` on, without the text before, with the first `count` occurrences (-1: all) of `what`
/// replaced. Error 5 for a start below 1 or a count below -1.
std::string Replace(std::string_view text, std::string_view what, std::string_view by, Long start = 1, Long count = -1,
                    VbCompareMethod compare = vbBinaryCompare);

/// Returns the pieces that contain `what`, or those that do not.
std::vector<std::string> Filter(const std::vector<std::string>& pieces, std::string_view what, bool include = true,
                                VbCompareMethod compare = vbBinaryCompare);

/// Compares texts by code point, folded for vbTextCompare: -1, 0 or 1.
Integer StrComp(std::string_view a, std::string_view b, VbCompareMethod compare = vbBinaryCompare) noexcept;

} // namespace basic
