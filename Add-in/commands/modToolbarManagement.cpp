#include "Add-in/commands/modToolbarManagement.h"
#include "Add-in/devices/modDeviceManagement.h"
#include <algorithm>

namespace fernwick {

namespace {

/// The caption of the menu's popup.
std::string supportToolbarName() {
    const auto isUtilities = [](const CommandRow& row) { return row.item == &CommandItems::gUtilitiesPopup; };
    const auto row = std::find_if(std::begin(kCommands), std::end(kCommands), isUtilities);
    return modDeviceManagement::StripAcceleratorInfo(row->caption.text);
}

} // namespace

bool modToolbarManagement::SetupQuinloftToolbar() try {
    const auto bar = items_.gMainToolbar = AddToolbar(command_texts::kToolbarString.text);
    addButtons(bar, Toolbar::Main);
    showDisabled(bar);
    return true;
} catch (const basic::RuntimeError& error) {
    services_.errors.Error_ShowAddInError("modToolbarManagement.SetupQuinloftToolbar", error);
    return false;
}

bool modToolbarManagement::SetupSupportToolbar() try {
    const auto bar = items_.gSupportToolbar = AddToolbar(supportToolbarName());
    addButtons(bar, Toolbar::Support);
    showDisabled(bar);
    return true;
} catch (const basic::RuntimeError& error) {
    services_.errors.Error_ShowAddInError("modToolbarManagement.SetupSupportToolbar", error);
    return false;
}

modToolbarManagement::Bar modToolbarManagement::AddToolbar(const std::string& name) {
    const auto bars = services_.addIn.gVBInstance->CommandBars();
    basic::Suppressed quietly;
    quietly([&] { bars->Item(name)->Delete(); });
    return bars->Add(name, office::msoBarTop, false);
}

modToolbarManagement::Item modToolbarManagement::AddControlButtonToolbar(const Bar& bar) {
    return bar->Controls()->Add(office::msoControlButton);
}

void modToolbarManagement::addButtons(const Bar& bar, Toolbar which) {
    for (const auto& command : kCommands) {
        const auto& tool = command.tool;
        if (!tool.item || tool.bar != which) continue;
        const auto button = AddControlButtonToolbar(bar);
        button->ToolTipText(tool.tip.text ? tool.tip.text : command.caption.text);
        services_.images.PlaceImageOnButton(button, command.face);
        if (tool.group) button->BeginGroup(true);
        items_.*tool.item = button;
    }
}

void modToolbarManagement::showDisabled(const Bar& bar) {
    bar->Visible(true);
    bar->Enabled(false);
    services_.prefs.ReadToolbarState(bar);
}

void modToolbarManagement::enable(const Bar& bar, const char* procedure) {
    Procedure here{services_.errors, std::string("modToolbarManagement.") + procedure};
    if (bar) here([&] { bar->Enabled(true); });
}

void modToolbarManagement::disable(const Bar& bar) {
    basic::Suppressed quietly;
    if (bar) quietly([&] { bar->Enabled(false); });
}

void modToolbarManagement::remove(const Bar& bar, Toolbar which) {
    basic::Suppressed quietly;
    for (const auto& command : kCommands) {
        const auto& tool = command.tool;
        if (!tool.item || tool.bar != which) continue;
        if (const auto& button = items_.*tool.item) quietly([&] { button->Delete(); });
    }
    if (bar) quietly([&] { bar->Delete(); });
}

void modToolbarManagement::SaveAllToolbarState() {
    for (const auto& bar : {items_.gMainToolbar, items_.gSupportToolbar})
        if (bar) services_.prefs.SaveToolbarState(bar);
}

void modToolbarManagement::RestoreAllToolbarState() {
    for (const auto& bar : {items_.gMainToolbar, items_.gSupportToolbar})
        if (bar) services_.prefs.ReadToolbarState(bar);
}

} // namespace fernwick
