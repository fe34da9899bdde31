#pragma once
// Conversion between UTF-8 and the UTF-16 in which a running program sees its texts.
#include <string>
#include <string_view>

namespace basic {

constexpr bool isSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDFFF; }

/// Returns the character at unit `at` and advances `at`; a surrogate without its other half is returned as it is.
char32_t nextCharacter(std::u16string_view text, std::size_t& at) noexcept;

/// Appends a character, of which surrogates are single units.
void appendCharacter(std::u16string& text, char32_t character);

/// Returns a text as UTF-16. A byte that is not part of a character becomes U+FFFD.
std::u16string toUtf16(std::string_view utf8);

/// Returns a text as UTF-8, with "?" for each surrogate without its other half.
std::string toUtf8(std::u16string_view text);

/// Returns a text with a byte for each unit, for parsers: a control character for each one that is not ASCII.
std::string asciiOf(std::u16string_view text);

} // namespace basic
