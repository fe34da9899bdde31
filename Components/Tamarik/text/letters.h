#pragma once
// Letter case of UTF-16 units. Each unit has one other form at most; surrogates have none.
#include "Basic/case_folding.h"
#include <string>
#include <string_view>

namespace tamarik {

using basic::vbBinaryCompare;
using basic::VbCompareMethod;
using basic::vbTextCompare;

/// For units from U+0080 on.
char16_t foldWideUnit(char16_t unit) noexcept;
inline char16_t foldUnit(char16_t unit) noexcept {
    if (unit < 0x80) return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
    return foldWideUnit(unit);
}

std::u16string fold(std::u16string_view text);

std::u16string UCase(std::u16string_view text);
std::u16string LCase(std::u16string_view text);

/// Capital letters at the start of words, which end at blanks, tabs, line ends and null characters; small ones elsewhere.
std::u16string properCase(std::u16string_view text);

/// Compares by unit, folded for vbTextCompare: -1, 0 or 1.
int compare(std::u16string_view a, std::u16string_view b, VbCompareMethod method = vbBinaryCompare) noexcept;

/// The Like operator, see basic::Like; a surrogate pair is two characters.
bool Like(std::u16string_view text, std::u16string_view pattern, VbCompareMethod method = vbBinaryCompare);

} // namespace tamarik
