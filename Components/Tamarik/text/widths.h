#pragma once
// The forms of East Asian characters: full and half width, hiragana and katakana.
#include <string>
#include <string_view>

namespace tamarik {

/// To full width. A half-width kana and the voice mark after it become one character.
std::u16string toWide(std::u16string_view text);

/// To half width. A voiced kana becomes two characters; what has no half-width form stays.
std::u16string toNarrow(std::u16string_view text);

std::u16string toKatakana(std::u16string_view text);
std::u16string toHiragana(std::u16string_view text);

} // namespace tamarik
