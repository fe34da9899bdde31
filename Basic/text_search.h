#pragma once
// VB's functions that look for one text in another. Positions and counts are in characters, positions from 1.
#include "Basic/case_folding.h"
#include "Basic/types.h"
#include <string>
#include <string_view>
#include <vector>

namespace basic {

/// Where `what` stands first at or behind `start`, 0 for nowhere. An empty `what` is found at `start`; nothing is
/// found in an empty text or from behind its end on. Error 5 for a start below 1.
Long InStr(Long start, std::string_view text, std::string_view what, VbCompareMethod compare = vbBinaryCompare);
Long InStr(std::string_view text, std::string_view what, VbCompareMethod compare = vbBinaryCompare);

/// Where `what` stands last among the first `start` characters (-1: all of them), counted from the left, 0 for
/// nowhere. An empty `what` is found at `start`; nothing is found from behind the text's end on. Error 5 for a start
/// of 0 or below -1.
Long InStrRev(std::string_view text, std::string_view what, Long start = -1, VbCompareMethod compare = vbBinaryCompare);

/// The text's pieces between delimiters, at most `limit` of them (-1: all), where the last keeps the rest. An empty
/// text has no pieces, an empty delimiter leaves the text whole. Error 5 for a limit below -1.
std::vector<std::string> Split(std::string_view text, std::string_view delimiter = " ", Long limit = -1,
                               VbCompareMethod compare = vbBinaryCompare);

std::string Join(const std::vector<std::string>& pieces, std::string_view delimiter = " ");

/// The text from `start` on (what stands before is dropped), its first `count` occurrences (-1: all) of `what`
/// replaced. Error 5 for a start below 1 or a count below -1.
std::string Replace(std::string_view text, std::string_view what, std::string_view by, Long start = 1, Long count = -1,
                    VbCompareMethod compare = vbBinaryCompare);

/// The pieces that contain `what`, or those that do not.
std::vector<std::string> Filter(const std::vector<std::string>& pieces, std::string_view what, bool include = true,
                                VbCompareMethod compare = vbBinaryCompare);

/// -1, 0 or 1: the order of the texts by code point, folded for vbTextCompare.
Integer StrComp(std::string_view a, std::string_view b, VbCompareMethod compare = vbBinaryCompare) noexcept;

} // namespace basic
