// Building the menu.
#include "Add-in/commands/modMenuManagement.h"

namespace fernwick {

namespace {
constexpr int kThirdFileItem = 3;
constexpr int kFourthFileItem = 4;
} // namespace

/// The order of the steps is the order of the items.
bool modMenuManagement::SetUpQuinloftMenu(const Host& VBInst) {
    Keys devices = services_.devices.GetDesignTargets(false);
    kludgeForTopDevices(devices);
    SortDeviceList(devices);
    items_.gMainMenu = AddSubMenu("Menu Bar", command_texts::kMenuString.text);
    if (!items_.gMainMenu) return false;

    const auto fileItem = [&](int position) { return VBInst->CommandBars()->Item("File")->Controls()->Item(position); };
    items_.gFileThirdItem = fileItem(kThirdFileItem);
    items_.gFileFourthItem = fileItem(kFourthFileItem);
    for (const auto& command : kCommands) addCommand(command, devices);
    return true;
}

void modMenuManagement::addCommand(const CommandRow& command, const Keys& devices) {
    const auto& menu = items_.*command.menu;
    const bool isButton = command.kind == CommandKind::Button;
    const auto item = items_.*command.item = isButton ? button(menu, command.caption, {command.group, command.face})
                                                      : popup(menu, command);
    setFirstState(item, command.first);
    if (command.devices) items_.*command.devices = deviceItems(item, devices, command.face);
    if (command.kind == CommandKind::SamplesPopup) SetupSamplesMenu();
}

void modMenuManagement::setFirstState(const Item& item, FirstState state) {
    switch (state) {
    case FirstState::AsAdded: return;
    case FirstState::Enabled: return item->Enabled(true);
    case FirstState::Shown: return item->Visible(true);
    case FirstState::DisabledAndHidden: item->Enabled(false); item->Visible(false);
    }
}

// ---- items
// -------------------------------------------------------------------------------------------------------------

modMenuManagement::Item modMenuManagement::AddToAddInCommandBar(const Item& parent, const std::string& caption) {
    const auto item = parent->Controls()->Add();
    item->Caption(caption);
    item->BeginGroup(false);
    return item;
}

modMenuManagement::Item modMenuManagement::AddPopupToAddInCommandBar(const Item& parent, const std::string& caption) {
    const auto item = parent->Controls()->Add(office::msoControlPopup);
    item->Caption(caption);
    return item;
}

modMenuManagement::Item modMenuManagement::button(const Item& parent, ResString caption, MenuLook look) {
    const auto item = AddToAddInCommandBar(parent, caption.text);
    if (look.group) item->BeginGroup(true);
    if (look.face != kNoFace) services_.images.PlaceImageOnButton(item, look.face);
    return item;
}

modMenuManagement::Item modMenuManagement::popup(const Item& parent, const CommandRow& command) {
    const auto item = AddPopupToAddInCommandBar(parent, command.caption.text);
    if (command.group) item->BeginGroup(true);
    return item;
}

// ---- devices
// -----------------------------------------------------------------------------------------------------------

/// The item that says there are no devices has no Tag and no sink.
Array<modMenuManagement::Item> modMenuManagement::deviceItems(const Item& popup, const Keys& devices, int face) {
    Array<Item> all;
    for (const auto& key : devices) {
        const auto item = AddToAddInCommandBar(popup, services_.devices.GetDeviceName(key));
        item->Tag(key);
        if (face != kNoFace) services_.images.PlaceImageOnButton(item, face);
        all.Append(item);
    }
    if (!devices.empty()) return all;
    const auto none = AddToAddInCommandBar(popup, command_texts::kNoDevices);
    none->Enabled(true);
    all.Append(none);
    return all;
}

void modMenuManagement::kludgeForTopDevices(Keys& devices) {
    const auto hasFamily = [](const std::string& key) { return key.find('-') != key.npos; };
    const auto familyOf = [](const std::string& key) { return key.substr(0, key.find('-')); };
    Keys first;
    for (const auto& device : devices) {
        const bool isKnown =
            hasFamily(device) && std::any_of(first.begin(), first.end(), [&](const std::string& other) {
                return hasFamily(other) && familyOf(other) == familyOf(device);
            });
        if (!isKnown) first.push_back(device);
    }
    devices = std::move(first);
}

void modMenuManagement::SortDeviceList(Keys& devices) { std::sort(devices.begin(), devices.end()); }

void modMenuManagement::SetupDefaultTargetName(const std::string& deviceKey) {
    Procedure here{services_.errors, "modMenuManagement.SetupDefaultTargetName"};
    const auto name = services_.devices.GetDeviceName(deviceKey);
    for (const auto& item : items_.gDeployItems) {
        const bool isDefault = here.test([&] { return item->Caption() == name; });
        here([&] { item->Style(isDefault ? office::msoButtonIconAndCaption : office::msoButtonCaption); });
    }
    if (items_.gToolDeploy) here([&] { items_.gToolDeploy->ToolTipText(command_texts::kDeployTo + name); });
}

} // namespace fernwick
