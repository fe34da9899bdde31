#pragma once
// In which code page a file is written: told per file, never per project.
#include "Basic/code_page.h"
#include <string_view>

namespace host {

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// UTF-8 for a file that starts with a byte order mark or whose characters beyond ASCII are all well-formed UTF-8
/// sequences; else `usual`, the code page of the machine that the project comes from.
basic::CodePage codePageOf(std::string_view bytes, const basic::CodePage& usual);

} // namespace host
