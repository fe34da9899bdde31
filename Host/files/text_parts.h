#pragma once
// Small operations on the parts of a line.
#include <string_view>

namespace host {

inline constexpr std::string_view kBlanks = " \t";

/// The text without leading blanks and tabs; a view into `text` even if nothing is left.
inline std::string_view trimLeft(std::string_view text) noexcept {
    const auto first = text.find_first_not_of(kBlanks);
    return text.substr(first == text.npos ? text.size() : first);
}

/// The text without trailing blanks and tabs.
inline std::string_view trimRight(std::string_view text) noexcept {
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

/// The text without blanks and tabs at both ends.
inline std::string_view trimBlanks(std::string_view text) noexcept { return trimLeft(trimRight(text)); }

/// The text without the quotes around it, if it has them.
inline std::string_view unquoted(std::string_view text) noexcept {
    const bool quoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    return quoted ? text.substr(1, text.size() - 2) : text;
}

/// Removes the text up to the next `separator` from `rest` and returns it; all of `rest` if there is no separator.
inline std::string_view takeField(std::string_view& rest, char separator) noexcept {
    const auto end = rest.find(separator);
    const auto field = rest.substr(0, end);
    rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
    return field;
}

} // namespace host
