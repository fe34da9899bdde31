#pragma once
// The menus of a form as the menu editor changes them: all at once.
#include "Add-in/platform/host_project.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// A menu, or an item of one, with its values.
struct FormMenu {
    basic::Ref<vbide::VBControl> control; ///< Nothing for a new menu
    int level = 0;                        ///< 0 for a menu of the menu bar
    std::string caption, name;
    std::optional<std::int32_t> index = {}; ///< in a control array
    std::string shortcut = {};              ///< as in forms; "" for none
    std::int32_t helpContextId = 0, negotiatePosition = 0;
    bool checked = false, enabled = true, visible = true, windowList = false;

    bool operator==(const FormMenu&) const = default;
    bool isSeparator() const { return caption == "-"; }
};

/// Returns the menus in the order of the menu bar; each is followed by its items.
std::vector<FormMenu> menusOf(const basic::Ref<vbide::VBForm>& form);

struct MenuProblem {
    std::size_t menu = 0; ///< its position
    std::string text;
};
/// Returns the first reason why a form cannot have these menus.
std::optional<MenuProblem> problemOf(const basic::Ref<vbide::VBForm>& form, const std::vector<FormMenu>& menus);

/// Gives the form these menus, which have no problem. Lines of menus that stay as they are do not change. Raises
/// ItemRemoved, ItemRenamed and ItemAdded for each menu once all of them are in place. Errors, without a change: 5 a
/// character that the code page lacks; 380 an invalid value.
void setMenus(const basic::Ref<vbide::VBForm>& form, const std::vector<FormMenu>& menus);

} // namespace host
