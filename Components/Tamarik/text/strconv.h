#pragma once
// VB's StrConv.
#include "Basic/code_page.h"
#include "Basic/types.h"
#include <string>
#include <string_view>

namespace tamarik {

/// VB's names for the conversions, which are added up.
enum VbStrConv {
    vbUpperCase = 1,
    vbLowerCase = 2,
    vbProperCase = 3,
    vbWide = 4,
    vbNarrow = 8,
    vbKatakana = 16,
    vbHiragana = 32,
    vbUnicode = 64,
    vbFromUnicode = 128,
};

/// Converts the bytes of a text, low byte first. vbUnicode takes each byte for one of the code page and runs first,
/// vbFromUnicode the opposite and runs last; without them a half unit at the end is kept. Error 5 for conversions that
/// exclude each other, for widths outside double-byte pages, and for kana outside page 932.
std::string StrConv(std::string_view bytes, basic::Long conversion,
                    const basic::CodePage& page = basic::CodePage::windows1252());

/// The bytes of a text, low byte first, and back; a half unit at the end is left out.
std::string bytesOf(std::u16string_view text);
std::u16string unitsOf(std::string_view bytes);

} // namespace tamarik
