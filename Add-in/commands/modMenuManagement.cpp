// The menu tree.
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
    items_.gMainMenu = AddSubMenu("Menu Bar", LoadResString(kMenuString));
    if (!items_.gMainMenu) return false;

    const auto fileItem = [&](int position) { return VBInst->CommandBars()->Item("File")->Controls()->Item(position); };
    items_.gFileThirdItem = fileItem(kThirdFileItem);
    items_.gFileFourthItem = fileItem(kFourthFileItem);
    addProjectItems(devices);
    addInstallItems(devices);
    items_.gOpenProjectItem = button(items_.gMainMenu, kOpenProjectString, {true, kOpenProjectFace});
    items_.gZoomItem = button(items_.gMainMenu, kZoomString, {true, kZoomFace});
    items_.gMessagesItem = button(items_.gMainMenu, kMessagesString);
    addUtilities();
    addHelpItems();
    return true;
}

void modMenuManagement::addProjectItems(const Keys& devices) {
    const auto& menu = items_.gMainMenu;
    items_.gCompileItem = button(menu, kCompileAndValidateString, {false, kCompileFace});
    items_.gDeployPopup = popup(menu, kDeployToDeviceString);
    fillFamily({items_.gDeployPopup, items_.gDeployItems, items_.gDeployAllItem}, devices, kDeployFace);
    items_.gPackagePopup = popup(menu, kSavePackageString);
    fillFamily({items_.gPackagePopup, items_.gPackageItems, items_.gPackageAllItem}, devices);
    items_.gSettingsItem = button(menu, kSettingsString, {false, kSettingsFace});
    items_.gSettingsItem->Enabled(true);
}

void modMenuManagement::addInstallItems(const Keys& devices) {
    const auto& menu = items_.gMainMenu;
    items_.gDownloadItem = button(menu, kDownloadRuntimeString, {true});
    items_.gDownloadItem->Enabled(false);
    items_.gDownloadItem->Visible(false);
    items_.gInstallPopup = popup(menu, kInstallRuntimeString, {true});
    items_.gInstallPopup->Visible(true);
    fillFamily({items_.gInstallPopup, items_.gInstallItems, items_.gInstallAllItem}, devices);
}

void modMenuManagement::addUtilities() {
    const auto menu = items_.gUtilitiesPopup = popup(items_.gMainMenu, kUtilitiesString, {true});
    items_.gDatabaseConverterItem = button(menu, kDatabaseConverterString, {false, kDatabaseConverterFace});
    items_.gDatabaseViewerItem = button(menu, kDatabaseViewerString, {false, kDatabaseViewerFace});
    items_.gFontConverterItem = button(menu, kFontConverterString, {false, kFontConverterFace});
    items_.gFontViewerItem = button(menu, kFontViewerString, {false, kFontViewerFace});
    items_.gGraphicsConverterItem = button(menu, kGraphicsConverterString, {false, kGraphicsConverterFace});
    items_.gGraphicsViewerItem = button(menu, kGraphicsViewerString, {false, kGraphicsViewerFace});
    items_.gMovieConverterItem = button(menu, kMovieConverterString, {false, kMovieConverterFace});
    items_.gMovieViewerItem = button(menu, kMovieViewerString, {false, kMovieViewerFace});
    items_.gWeirgateItem = button(menu, kWeirgateString, {true, kWeirgateFace});
}

void modMenuManagement::addHelpItems() {
    const auto& menu = items_.gMainMenu;
    items_.gGuideItem = button(menu, kUsersGuideString, {true, kUsersGuideFace});
    items_.gSamplesPopup = popup(menu, kSamplesString);
    SetupSamplesMenu();
    items_.gWebItem = button(menu, kWebString);
    items_.gAboutItem = button(menu, kAboutString, {true});
}

// ---- items -------------------------------------------------------------------------------------------------------------

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

modMenuManagement::Item modMenuManagement::button(const Item& parent, StringId caption, MenuLook look) {
    const auto item = AddToAddInCommandBar(parent, LoadResString(caption));
    if (look.group) item->BeginGroup(true);
    if (look.face != kNoFace) services_.images.PlaceImageOnButton(item, look.face);
    return item;
}

modMenuManagement::Item modMenuManagement::popup(const Item& parent, StringId caption, MenuLook look) {
    const auto item = AddPopupToAddInCommandBar(parent, LoadResString(caption));
    if (look.group) item->BeginGroup(true);
    return item;
}

// ---- devices -----------------------------------------------------------------------------------------------------------

void modMenuManagement::fillFamily(const Family& family, const Keys& devices, Face face) {
    family.devices = deviceItems(family.popup, devices, face);
    family.all = button(family.popup, kToMyDevicesString, {true});
}

/// An item that stands for no device has no Tag, and nobody listens to it.
Array<modMenuManagement::Item> modMenuManagement::deviceItems(const Item& popup, const Keys& devices, Face face) {
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
