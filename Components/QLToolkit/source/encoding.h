#pragma once
// The encoding of source files, as far as finding names and columns needs it.
#include "Basic/code_page.h"
#include <string_view>

namespace qltoolkit {

using basic::kUtf8Page;

/// Returns true if `text` begins with a wide blank or a no-break space. At least two bytes must be readable.
[[nodiscard]] bool isWideBlank(int codePage, const char* text);
/// Returns the length of such a blank in bytes.
[[nodiscard]] unsigned wideBlankBytes(int codePage);

/// Returns true if the text contains typographic or East Asian quotes, dashes or commas, as word processors insert.
[[nodiscard]] bool hasTypographicMark(std::string_view utf8);

} // namespace qltoolkit
