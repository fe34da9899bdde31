#pragma once
// How a file's bytes make characters, as far as finding names and columns needs it.
#include <string_view>

namespace qltoolkit {

inline constexpr int kUtf8Page = 65001;

/// True for a byte order mark at the start, or for text whose bytes above 127 are all well-formed UTF-8 (some must be).
[[nodiscard]] bool isUtf8WithNonAscii(std::string_view bytes);

/// True when `byte` begins a character of two bytes: in 932, 936, 949 and 950 only.
[[nodiscard]] bool isLeadByteOf(int codePage, unsigned char byte);

/// True when the character at `text` is a wide blank or a no-break space; `text` has at least two readable bytes.
[[nodiscard]] bool isWideBlank(int codePage, const char* text);
/// How many bytes such a blank has.
[[nodiscard]] unsigned wideBlankBytes(int codePage);

/// True for quotes, dashes and commas of typography and of East Asian scripts: what word processors leave in code.
[[nodiscard]] bool hasTypographicMark(std::string_view utf8);

} // namespace qltoolkit
