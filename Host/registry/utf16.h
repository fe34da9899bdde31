#pragma once
// UTF-16 in little-endian bytes, the form in which registry files hold text.
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// Nothing for an odd number of bytes or half a surrogate pair.
std::optional<std::string> utf8FromUtf16Bytes(std::string_view bytes);

/// Nothing for text that is not UTF-8.
std::optional<std::string> utf16BytesFromUtf8(std::string_view text);

/// Where `text` first stops being UTF-8; its length when it never does.
std::size_t validUtf8Length(std::string_view text);

} // namespace host
