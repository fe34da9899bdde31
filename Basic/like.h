#pragma once
// VB's Like operator.
#include "Basic/case_folding.h"
#include <string_view>

namespace basic {

/// Whether the whole text fits the pattern: ? is any character, * any number of characters, # a digit, [list] a
/// character of the list and [!list] one that is not in it. A list holds characters and ranges such as A-Z; a hyphen
/// at its begin or end is itself, as is any special character but ]. [] fits the empty text, [!] any character.
/// vbTextCompare folds text and pattern.
///
/// Error 93 for a pattern whose list has no end, a range that runs down, or a hyphen behind a range. The time grows
/// with the product of both lengths at worst, whatever the number of asterisks.
bool Like(std::string_view text, std::string_view pattern, VbCompareMethod compare = vbBinaryCompare);

} // namespace basic
