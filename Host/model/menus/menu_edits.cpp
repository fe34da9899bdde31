#include "Host/model/menus/menu_edits.h"
#include "Basic/case_folding.h"
#include "Host/files/system_error.h"
#include "Host/model/code/menu_shortcuts.h"
#include "Host/model/forms/block_properties.h"
#include "Host/model/forms/form_controls.h"
#include <algorithm>
#include <map>

namespace host {
namespace {

using Form = basic::Ref<vbide::VBForm>;
using Block = std::shared_ptr<FormBlock>;

constexpr std::string_view kMenuClass = "VB.Menu";

bool isMenu(const FormBlock& block) { return basic::equalNoCase(block.type(), kMenuClass); }

std::vector<Block> menusIn(const FormBlock& container) {
    auto blocks = container.objects();
    std::erase_if(blocks, [](const auto& block) { return !isMenu(*block); });
    return blocks;
}

Block blockOf(const basic::Ref<vbide::VBControl>& control) {
    const auto model = basic::cast<ControlModel>(control);
    return model ? model->block() : nullptr;
}

FormMenu menuOf(const basic::Ref<vbide::VBControl>& control, int level) {
    const auto properties = control->Properties();
    const auto value = [&](const char* name) { return properties->Item(name)->Value(); };
    FormMenu menu{control, level, fernwick::asText(value("Caption")), fernwick::asText(value("Name"))};
    if (const auto index = fernwick::asLong(value("Index")); index >= 0) menu.index = index;
    menu.shortcut = fernwick::asText(value("Shortcut"));
    menu.helpContextId = fernwick::asLong(value("HelpContextID"));
    menu.negotiatePosition = fernwick::asLong(value("NegotiatePosition"));
    menu.checked = fernwick::asBoolean(value("Checked"));
    menu.enabled = fernwick::asBoolean(value("Enabled"));
    menu.visible = fernwick::asBoolean(value("Visible"));
    menu.windowList = fernwick::asBoolean(value("WindowList"));
    return menu;
}

void listMenus(DesignerState& state, const FormBlock& container, int level, std::vector<FormMenu>& out) {
    for (const auto& block : menusIn(container)) {
        out.push_back(menuOf(state.controlOf(*block), level));
        listMenus(state, *block, level + 1, out);
    }
}

/// The menus of one container and their places among its lines.
struct Nested {
    std::vector<Block> menus;
    std::vector<std::size_t> places;
};

Nested takeMenus(FormBlock& container) {
    Nested nested{menusIn(container), {}};
    for (auto at = nested.menus.rbegin(); at != nested.menus.rend(); ++at)
        nested.places.insert(nested.places.begin(), container.removeObject(**at).value_or(0));
    return nested;
}

/// Puts menus where others were; further ones follow the last, or all other lines.
void putMenus(FormBlock& container, const Nested& nested) {
    auto place = nested.places.empty() ? container.lineCount() : std::size_t(0);
    for (std::size_t i = 0; i < nested.menus.size(); ++i) {
        place = i < nested.places.size() ? nested.places[i] : place + 1;
        container.restoreObject(nested.menus[i], place);
    }
}

/// Rebuilds the tree of blocks.
class MenuTree {
public:
    explicit MenuTree(DesignerState& state) : state_(state) {}

    void build(const std::vector<FormMenu>& menus) {
        takeAll(state_.file->root(), -1);
        std::vector<Block> path{state_.file->root()};
        for (const auto& menu : menus) {
            path.resize(std::size_t(menu.level) + 1);
            auto block = blockOf(menu.control);
            if (block) {
                block->indent(menu.level - levels_.at(block));
            } else {
                block = path.back()->addObject(kMenuClass, menu.name);
                path.back()->removeObject(*block);
            }
            block->name(menu.name);
            containers_[path.back()].menus.push_back(block);
            blocks.push_back(block);
            path.push_back(block);
        }
        for (const auto& [container, nested] : containers_) putMenus(*container, nested);
        for (const auto& [block, content] : contents_)
            if (std::find(blocks.begin(), blocks.end(), block) == blocks.end()) block->content(content);
        state_.controlsChanged();
    }

    std::vector<Block> blocks; ///< of the menus, in their order

private:
    void takeAll(const Block& container, int level) {
        levels_[container] = level;
        if (level >= 0) contents_[container] = container->content();
        const auto taken = takeMenus(*container);
        containers_[container].places = taken.places;
        for (const auto& menu : taken.menus) takeAll(menu, level + 1);
    }

    DesignerState& state_;
    std::map<Block, int> levels_;
    std::map<Block, FormBlock::Content> contents_; ///< which removed menus keep, in case that they return
    std::map<Block, Nested> containers_;
};

/// Refuses what a form cannot store, before anything is changed. Present values may be invalid.
void checkMenu(const DesignerState& state, const FormMenu& menu, const std::vector<FormMenu>& before) {
    const auto old = std::find_if(before.begin(), before.end(),
                                  [&](const auto& one) { return menu.control && one.control == menu.control; });
    const auto was = old == before.end() ? FormMenu() : *old;
    if (menu.name != was.name) state.checkText(menu.name);
    if (menu.caption != was.caption) state.checkText(menu.caption);
    if (menu.shortcut != was.shortcut && !shortcutLiteral(menu.shortcut)) throw hostError(basic::kInvalidPropertyValue);
}

void setMenu(const basic::Ref<vbide::VBControl>& control, const FormMenu& menu) {
    const auto properties = control->Properties();
    const auto set = [&](const char* name, const vbide::Variant& value) { properties->Item(name)->Value(value); };
    set("Caption", menu.caption);
    set("Index", menu.index.value_or(-1));
    set("Shortcut", menu.shortcut);
    set("HelpContextID", menu.helpContextId);
    set("NegotiatePosition", menu.negotiatePosition);
    set("Checked", menu.checked);
    set("Enabled", menu.enabled);
    set("Visible", menu.visible);
    set("WindowList", menu.windowList);
}

void raiseRemoved(const DesignerState& state, const std::vector<FormMenu>& before, const std::vector<FormMenu>& menus) {
    const auto& raise = state.hooks.controlRemoved;
    for (const auto& old : before) {
        const auto same = [&](const FormMenu& menu) { return menu.control == old.control; };
        if (raise && std::none_of(menus.begin(), menus.end(), same)) raise(old.control);
    }
}

void raiseRenamed(const DesignerState& state, const std::vector<FormMenu>& before, const std::vector<FormMenu>& menus) {
    const auto& raise = state.hooks.controlRenamed;
    for (const auto& old : before)
        for (const auto& menu : menus)
            if (raise && menu.control == old.control && (menu.name != old.name || menu.index != old.index))
                raise(menu.control, old.name, old.index.value_or(-1));
}

/// A handler may remove a menu with its items.
void raiseAdded(DesignerState& state, const std::vector<Block>& blocks, const std::vector<FormMenu>& menus) {
    for (std::size_t i = 0; i < menus.size(); ++i)
        if (!menus[i].control && state.hooks.controlAdded && state.holds(*blocks[i]))
            state.hooks.controlAdded(state.controlOf(*blocks[i]));
}

} // namespace

std::vector<FormMenu> menusOf(const Form& form) {
    const auto state = stateOf(form);
    std::vector<FormMenu> menus;
    listMenus(*state, state->root(), 0, menus);
    return menus;
}

void setMenus(const Form& form, const std::vector<FormMenu>& menus) {
    const auto state = stateOf(form);
    const auto before = menusOf(form);
    for (const auto& menu : menus) checkMenu(*state, menu, before);
    MenuTree tree(*state);
    tree.build(menus);
    for (std::size_t i = 0; i < menus.size(); ++i) setMenu(state->controlOf(*tree.blocks[i]), menus[i]);
    state->raiseChanged();
    raiseRemoved(*state, before, menus);
    raiseRenamed(*state, before, menus);
    raiseAdded(*state, tree.blocks, menus);
}

} // namespace host
