// Why a form cannot have certain menus.
#include "Basic/case_folding.h"
#include "Host/model/code/names.h"
#include "Host/model/forms/form_controls.h"
#include "Host/model/menus/menu_edits.h"
#include <algorithm>
#include <fmt/format.h>

namespace host {
namespace {

constexpr int kDeepestLevel = 4;

using Menus = std::vector<FormMenu>;

bool hasItems(const Menus& menus, std::size_t at) {
    return at + 1 < menus.size() && menus[at + 1].level > menus[at].level;
}

std::string problemOfName(const FormMenu& menu) {
    if (menu.name.empty()) return "Every menu needs a name, separators too.";
    return isLegalName(menu.name) ? "" : fmt::format("'{}' is not a legal name.", menu.name);
}

std::string problemOfLevel(const Menus& menus, std::size_t at) {
    const auto& menu = menus[at];
    const int above = at == 0 ? -1 : menus[at - 1].level;
    if (menu.level > above + 1) return "An item can be only one level below the menu before it.";
    return menu.level > kDeepestLevel ? "A menu can have at most four levels below the menu bar." : "";
}

std::string problemOfSeparator(const Menus& menus, std::size_t at) {
    const auto& menu = menus[at];
    if (!menu.isSeparator()) return "";
    if (menu.level == 0) return "A separator cannot be in the menu bar.";
    if (hasItems(menus, at)) return "A separator cannot have items.";
    const bool isPlain = !menu.checked && menu.enabled && menu.shortcut.empty() && !menu.windowList;
    return isPlain ? "" : "A separator cannot be checked or disabled, and cannot have a shortcut or a window list.";
}

std::string problemOfMarks(const Menus& menus, std::size_t at) {
    const auto& menu = menus[at];
    if (menu.level == 0 && menu.checked) return "A menu of the menu bar cannot be checked.";
    if (menu.level == 0 && !menu.shortcut.empty()) return "A menu of the menu bar cannot have a shortcut.";
    if (!hasItems(menus, at)) return "";
    if (menu.checked) return "A menu with items cannot be checked.";
    return menu.shortcut.empty() ? "" : "A menu with items cannot have a shortcut.";
}

bool isTakenByControl(const basic::Ref<vbide::VBForm>& form, const std::string& name) {
    const auto model = basic::cast<FormModel>(form);
    if (basic::equalNoCase(model->state()->root().name(), name)) return true;
    const auto control = model->state()->controlNamed(name);
    return control && control->ClassName() != "Menu";
}

/// Members of a control array follow each other in one menu, with rising indexes.
std::string problemOfArray(const Menus& menus, std::size_t first, std::size_t second) {
    const auto &a = menus[first], &b = menus[second];
    if (!a.index || !b.index)
        return fmt::format("The name '{}' is used twice. In a control array, each menu must have an index.", b.name);
    const auto between = [&](const FormMenu& menu) { return menu.level <= b.level; };
    const bool apart = a.level != b.level || std::any_of(menus.begin() + std::ptrdiff_t(first) + 1,
                                                         menus.begin() + std::ptrdiff_t(second), between);
    if (apart) return fmt::format("The menus of the control array '{}' must follow each other in one menu.", b.name);
    return *a.index < *b.index
               ? ""
               : fmt::format("The indexes of the control array '{}' must be in ascending order.", b.name);
}

/// Compares with the menus before it, the last one first.
std::string problemOfUse(const basic::Ref<vbide::VBForm>& form, const Menus& menus, std::size_t at) {
    const auto& menu = menus[at];
    if (isTakenByControl(form, menu.name)) return fmt::format("The name '{}' is already in use.", menu.name);
    for (auto before = at; before-- > 0;)
        if (basic::equalNoCase(menus[before].name, menu.name)) return problemOfArray(menus, before, at);
    return "";
}

std::string problemOfTwice(const Menus& menus, std::size_t at) {
    const auto& menu = menus[at];
    for (std::size_t before = 0; before < at; ++before) {
        if (!menu.shortcut.empty() && basic::equalNoCase(menus[before].shortcut, menu.shortcut))
            return fmt::format("The shortcut is already that of '{}'.", menus[before].name);
        if (menu.windowList && menus[before].windowList)
            return fmt::format("Only one menu can have the window list, which '{}' has.", menus[before].name);
    }
    return "";
}

std::string firstProblem(const basic::Ref<vbide::VBForm>& form, const Menus& menus, std::size_t at) {
    if (auto text = problemOfName(menus[at]); !text.empty()) return text;
    if (auto text = problemOfLevel(menus, at); !text.empty()) return text;
    if (auto text = problemOfSeparator(menus, at); !text.empty()) return text;
    if (auto text = problemOfMarks(menus, at); !text.empty()) return text;
    if (menus[at].index && *menus[at].index < 0) return "An index cannot be negative.";
    if (auto text = problemOfUse(form, menus, at); !text.empty()) return text;
    return problemOfTwice(menus, at);
}

} // namespace

std::optional<MenuProblem> problemOf(const basic::Ref<vbide::VBForm>& form, const std::vector<FormMenu>& menus) {
    for (std::size_t at = 0; at < menus.size(); ++at)
        if (auto text = firstProblem(form, menus, at); !text.empty()) return MenuProblem{at, std::move(text)};
    return std::nullopt;
}

} // namespace host
