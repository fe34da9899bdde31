#include "Host/model/code/menu_shortcuts.h"
#include "Basic/case_folding.h"
#include <fmt/format.h>

namespace host {
namespace {

constexpr int kFunctionKeys = 12, kMenuKey = 10; // F10 opens the menu bar

void addFunctionKeys(std::vector<MenuShortcut>& keys, std::string_view literal, std::string_view text) {
    for (int number = 1; number <= kFunctionKeys; ++number)
        if (number != kMenuKey)
            keys.push_back({fmt::format("{}{{F{}}}", literal, number), fmt::format("{}F{}", text, number)});
}

std::vector<MenuShortcut> allShortcuts() {
    std::vector<MenuShortcut> keys;
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        keys.push_back({fmt::format("^{}", letter), fmt::format("Ctrl+{}", letter)});
    addFunctionKeys(keys, "", "");
    addFunctionKeys(keys, "^", "Ctrl+");
    addFunctionKeys(keys, "+", "Shift+");
    addFunctionKeys(keys, "+^", "Shift+Ctrl+");
    const MenuShortcut others[] = {{"^{INSERT}", "Ctrl+Ins"},
                                   {"+{INSERT}", "Shift+Ins"},
                                   {"{DEL}", "Del"},
                                   {"+{DEL}", "Shift+Del"},
                                   {"%{BKSP}", "Alt+Bksp"}};
    keys.insert(keys.end(), std::begin(others), std::end(others));
    return keys;
}

} // namespace

const std::vector<MenuShortcut>& menuShortcuts() {
    static const auto all = allShortcuts();
    return all;
}

std::string shortcutText(std::string_view literal) {
    for (const auto& key : menuShortcuts())
        if (basic::equalNoCase(key.literal, literal)) return key.text;
    return std::string(literal);
}

std::optional<std::string> shortcutLiteral(std::string_view text) {
    if (text.empty() || basic::equalNoCase(text, "(None)")) return "";
    for (const auto& key : menuShortcuts())
        if (basic::equalNoCase(key.literal, text) || basic::equalNoCase(key.text, text)) return key.literal;
    return std::nullopt;
}

} // namespace host
