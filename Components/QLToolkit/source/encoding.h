#pragma once
// The encoding of source files, as far as finding names and columns needs it.
#include <string_view>

namespace qltoolkit {

inline constexpr int kUtf8Page = 65001;

/// Returns true for a byte order mark at the start, or for text with bytes above 127 that are all well-formed UTF-8.
[[nodiscard]] bool isUtf8WithNonAscii(std::string_view bytes);

/// Returns true if `byte` begins a two-byte character, which exist only in code pages 932, 936, 949 and 950.
[[nodiscard]] bool isLeadByteOf(int codePage, unsigned char byte);

/// Returns true if `text` begins with a wide blank or a no-break space. At least two bytes must be readable.
[[nodiscard]] bool isWideBlank(int codePage, const char* text);
/// Returns the length of such a blank in bytes.
[[nodiscard]] unsigned wideBlankBytes(int codePage);

/// Returns true if the text contains typographic or East Asian quotes, dashes or commas, as word processors insert.
[[nodiscard]] bool hasTypographicMark(std::string_view utf8);

} // namespace qltoolkit
