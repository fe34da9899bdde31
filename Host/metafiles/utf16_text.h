#pragma once
#include <string>
#include <string_view>

namespace host {

/// Returns little-endian UTF-16 up to its first zero as UTF-8. Halves of characters become "?".
std::string textOfUtf16(std::string_view bytes);

} // namespace host
