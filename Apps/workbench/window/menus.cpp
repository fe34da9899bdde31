#include "Apps/workbench/window/menus.h"
#include "Apps/workbench/bars/bar_controls.h"
#include "Apps/workbench/window/dock_menu.h"
#include "Apps/workbench/window/main_window.h"
#include "Apps/workbench/window/window_menu.h"
#include <utility>

namespace workbench {

namespace {

constexpr int kTopOfWindow = 1;

/// A control that is enabled only in some places.
struct PlacedControl {
    std::shared_ptr<host::BarControl> control;
    Command command;
};

/// Fills the menus and keeps the controls that are enabled only in some places.
class MenuFiller {
public:
    explicit MenuFiller(const CommandTargets& targets) : targets_(targets) {}

    void fill(const CommandMenu& menu) {
        const auto bar = controlOf(targets_.host, menu.id)->popup();
        bool group = false;
        for (const auto& command : menu.commands)
            if (command.id == kGroup)
                group = true;
            else
                add(*bar, command, std::exchange(group, false));
    }
    const std::vector<PlacedControl>& placed() const { return placed_; }

private:
    void add(host::Bar& bar, const Command& command, bool group) {
        auto control = controlOf(targets_.host, command.id);
        if (!control) {
            const bool isSubmenu = command.act == nullptr;
            control = bar.add(isSubmenu ? office::msoControlPopup : office::msoControlButton, command.id);
            control->BeginGroup(group);
        }
        if (command.text) control->Caption(command.text);
        if (command.act) control->action = actionOf(command);
        if (command.enabled != Enabled::Always) placed_.push_back({control, command});
    }

    /// An add-in may execute a control that is disabled.
    std::function<void()> actionOf(const Command& command) const {
        return [on = targets_, act = command.act, where = command.enabled] {
            if (on.window.editFocus().allows(where)) act(on);
        };
    }

    CommandTargets targets_;
    std::vector<PlacedControl> placed_;
};

void enableWhereAllowed(const CommandTargets& targets, const std::vector<PlacedControl>& placed) {
    auto& focus = targets.window.editFocus();
    focus.changed = [&focus, targets, placed] {
        // each change draws all menus again
        for (const auto& [control, command] : placed) {
            const bool allowed = focus.allows(command.enabled);
            const bool on = allowed && command.isOn && command.isOn(targets);
            if (control->Enabled() != allowed) control->Enabled(allowed);
            if (command.isOn && control->checked() != on) control->checked(on);
            if (!command.step) continue;
            const auto step = allowed ? command.step(targets) : "";
            const auto caption = command.text + (step.empty() ? "" : " " + step);
            if (control->Caption() != caption) control->Caption(caption);
        }
    };
    focus.changed();
}

/// Lists the add-ins, each a switch that connects it.
void fillAddIns(host::Host& host, host::Bar& menu) {
    for (const auto& old : std::vector(menu.list()))
        if (old->Id() == kAddInId) old->Delete();
    for (const auto& addIn : host.Addins()->items()) {
        const auto entry = menu.add(office::msoControlButton, kAddInId);
        entry->Caption(addIn->Description());
        entry->checked(addIn->Connect());
        entry->action = [addIn] { addIn->Connect(!addIn->Connect()); };
    }
}

void addAddInsMenu(host::Host& host) {
    const auto control = controlOf(host, host::kAddInsMenuId);
    control->beforeShow = [&host, popup = std::weak_ptr(control->popup())] {
        if (const auto menu = popup.lock()) fillAddIns(host, *menu);
    };
    control->beforeShow(); // an empty menu would not be shown
}

void addStandardToolbar(host::Host& host) {
    const auto toolbar = host.bars().addBar(kStandardToolbar, kTopOfWindow);
    for (const int id :
         {int(host::kNewProjectId), int(host::kOpenProjectId), int(host::kSaveProjectId), int(kStartId)}) {
        const auto button = toolbar->add(office::msoControlButton, id);
        const auto command = controlOf(host, id);
        button->Caption(command->Caption());
        button->BeginGroup(id == kStartId);
        button->action = [command] { command->Execute(); };
    }
}

} // namespace

void addMenus(const CommandTargets& targets) {
    auto& host = targets.host;
    addTopMenu(host, kFormatMenuId, "F&ormat", host::kAddInsMenuId);
    addTopMenu(host, kDebugMenuId, "&Debug", host::kAddInsMenuId);
    addTopMenu(host, kRunMenuId, "&Run", host::kAddInsMenuId);
    addTopMenu(host, kToolsMenuId, "&Tools", host::kAddInsMenuId);
    addTopMenu(host, kWindowMenuId, "&Window", host::kHelpMenuId);
    MenuFiller filler(targets);
    for (const auto& menu : commandMenus()) filler.fill(menu);
    enableWhereAllowed(targets, filler.placed());
    addStandardToolbar(host);
    addToolBarSwitches(host);
    addDockCommands(host, targets.window.docks());
    addAddInsMenu(host);
    listWindows(host, targets.window.code());
}

std::shared_ptr<host::Bar> recentMenu(host::Host& host) { return controlOf(host, kRecentMenuId)->popup(); }

} // namespace workbench
