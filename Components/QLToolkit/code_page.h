#pragma once
// Code pages of source files, as far as the compiler must know them: which bytes are one character, what they mean.
#include <string>
#include <string_view>

namespace compiler {

inline constexpr unsigned kUtf8 = 65001;

/// True for a byte order mark at the start, or for text whose bytes above 127 are all well-formed UTF-8 (some must be).
[[nodiscard]] bool isUtf8WithNonAscii(std::string_view bytes);

/// True when `byte` begins a character of two bytes: in 932, 936, 949 and 950 only.
[[nodiscard]] bool isLeadByteOf(unsigned codePage, unsigned char byte);

/// Bytes of a Windows code page as UTF-8; what means nothing becomes U+FFFD. An unknown code page is read as 1252.
[[nodiscard]] std::string decodeBytes(std::string_view bytes, unsigned codePage);

/// The name with the case of its letters folded away (simple folding, no locale). Takes and gives UTF-8.
[[nodiscard]] std::string foldName(std::string_view utf8);

} // namespace compiler
