#pragma once
// The byte order mark of UTF-8 files.
#include <string_view>

namespace host {

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The text without a UTF-8 byte order mark at its start.
inline std::string_view withoutByteOrderMark(std::string_view text) noexcept {
    return text.starts_with(kByteOrderMark) ? text.substr(kByteOrderMark.size()) : text;
}

} // namespace host
