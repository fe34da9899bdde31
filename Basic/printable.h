#pragma once
// Text of unknown origin for terminals and logs.
#include <string>
#include <string_view>

namespace basic {

/// Replaces what a terminal would obey or what would hide text: control characters, marks that change the direction of
/// writing and line separators become "\u001B", a line feed "\n", and bytes that are not UTF-8 "\xFF". ASCII characters
/// in `kept` stay.
[[nodiscard]] std::string printable(std::string_view text, std::string_view kept = {});

} // namespace basic
