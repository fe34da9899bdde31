#pragma once
// The shortcut keys that a menu can have.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

struct MenuShortcut {
    std::string literal; ///< as in a form: "^S", "+{F5}"
    std::string text;    ///< as menus show it: "Ctrl+S", "Shift+F5"
};

/// In the order in which the menu editor lists them.
const std::vector<MenuShortcut>& menuShortcuts();

/// Returns the text of a literal; the literal itself if it is none of the list.
std::string shortcutText(std::string_view literal);
/// Returns the literal of a text or literal, ignoring case, and "" for "" and "(None)". Nothing if there is no such key.
std::optional<std::string> shortcutLiteral(std::string_view text);

} // namespace host
