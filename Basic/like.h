#pragma once
// VB's Like operator.
#include "Basic/case_folding.h"
#include <string_view>

namespace basic {

/// True if the whole text matches the pattern: ? is any character, * any number of characters, # a digit, [list] a
/// character of the list and [!list] one that is not in it. A list has characters and ranges such as A-Z; a hyphen at
/// either end is literal, as is any special character but ]. [] matches the empty text, [!] any character.
/// vbTextCompare ignores case.
///
/// Error 93 for a list without an end, a descending range, or a hyphen after a range. The worst case takes time
/// proportional to the product of both lengths, for any number of asterisks.
bool Like(std::string_view text, std::string_view pattern, VbCompareMethod compare = vbBinaryCompare);

/// Like over characters, or other units, that the caller has folded.
bool likeCharacters(std::u32string_view text, std::u32string_view pattern);

} // namespace basic
