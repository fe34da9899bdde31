#pragma once
// Little-endian UTF-16, the encoding of text in registry files.
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// Nothing for an odd number of bytes or an unpaired surrogate.
std::optional<std::string> utf8FromUtf16Bytes(std::string_view bytes);

/// Nothing for text that is not UTF-8.
std::optional<std::string> utf16BytesFromUtf8(std::string_view text);

/// Returns the length of the valid UTF-8 at the start of `text`.
std::size_t validUtf8Length(std::string_view text);

} // namespace host
