#pragma once
// Blanks round the parts of a line.
#include <string_view>

namespace host {

/// `text` without blanks and tabs at both ends: always a part of it.
inline std::string_view trimBlanks(std::string_view text) noexcept {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return text.substr(0, 0);
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

} // namespace host
