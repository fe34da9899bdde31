#pragma once
// The code page of a file. It is determined for each file, not for a project.
#include "Basic/code_page.h"
#include <string_view>

namespace host {

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The text without a UTF-8 byte order mark at its start.
inline std::string_view withoutByteOrderMark(std::string_view text) noexcept {
    return text.starts_with(kByteOrderMark) ? text.substr(kByteOrderMark.size()) : text;
}

/// Returns UTF-8 for a file that starts with a byte order mark or whose non-ASCII characters are all well-formed UTF-8
/// sequences, otherwise `usual`, the code page of the machine on which the project was written.
basic::CodePage codePageOf(std::string_view bytes, const basic::CodePage& usual);

} // namespace host
