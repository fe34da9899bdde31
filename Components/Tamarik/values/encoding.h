#pragma once
// UTF-16 of the language and UTF-8 of everything around it.
#include <string>
#include <string_view>

namespace tamarik {

/// Half of a surrogate pair alone becomes U+FFFD.
[[nodiscard]] std::string toUtf8(std::u16string_view text);
/// Malformed bytes become U+FFFD.
[[nodiscard]] std::u16string toUtf16(std::string_view utf8);

} // namespace tamarik
