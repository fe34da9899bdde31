// The samples menu: three fixed items, and the samples listed in the registry.
#include "Add-in/commands/modMenuManagement.h"

namespace fernwick {

namespace {
constexpr int kSampleFace = 123;
constexpr int kSampleDirFace = 124;
} // namespace

void modMenuManagement::SetupSamplesMenu() {
    Procedure here{services_.errors, "modMenuManagement.SetupSamplesMenu"};
    const auto& menu = items_.gSamplesPopup;
    items_.gSampleItems = {};
    here([&] { items_.gSampleIntroItem = button(menu, command_texts::kSampleIntroString); });
    here([&] { items_.gSampleHelloItem = button(menu, command_texts::kSampleHelloString); });
    bool isFirst = true;
    SetupDynamicSamplesMenu(kSamplesKey, menu, isFirst);
    here([&] { items_.gSampleDirItem = button(menu, command_texts::kSampleDirString, {true, kSampleDirFace}); });
}

void modMenuManagement::SetupDynamicSamplesMenu(const std::string& keyPath, const Item& parent, bool& isFirst) {
    const RegistryKey key{services_.registry, services_.registry.OpenKey(HKEY_LOCAL_MACHINE, keyPath, KEY_READ)};
    if (!key) return;
    for (const auto& below : sampleKeysBelow(services_.registry, key, keyPath))
        SetupDynamicSamplesMenuHelper(below, parent, isFirst);
}

/// A key without a default value, and its subkeys, are skipped. The menu is nested like the keys; the popups of a key
/// precede its samples.
void modMenuManagement::SetupDynamicSamplesMenuHelper(const std::string& keyPath, const Item& parent, bool& isFirst) {
    Procedure here{services_.errors, "modMenuManagement.SetupDynamicSamplesMenuHelper"};
    const RegistryKey key{services_.registry, services_.registry.OpenKey(HKEY_LOCAL_MACHINE, keyPath, KEY_READ)};
    if (!key) return;
    const auto caption = services_.registry.GetStringValue(key.handle(), "");
    if (!caption.ok() || caption.text.empty()) return;

    const auto menu = here.value([&] { return AddPopupToAddInCommandBar(parent, caption.text); });
    here([&] { addSampleItem(menu, true); });
    if (isFirst) here([&] { menu->BeginGroup(true); });
    isFirst = false;
    SetupDynamicSamplesMenu(keyPath, menu, isFirst);
    for (const auto& sample : samplesOf(services_.registry, key)) here([&] { addSample(menu, sample); });
}

void modMenuManagement::addSample(const Item& popup, const modSamplesManagement::Sample& stored) {
    const auto sample = addSampleItem(AddToAddInCommandBar(popup, stored.Name), false);
    services_.images.PlaceImageOnButton(sample->myOfficeCommandBar, kSampleFace);
    sample->Name = stored.Name;
    sample->fullPath = stored.fullPath;
}

basic::Ref<clsSampleMenuItem> modMenuManagement::addSampleItem(const Item& control, bool isPopup) {
    const auto sample = basic::make<clsSampleMenuItem>();
    sample->myOfficeCommandBar = control;
    sample->popupMenu = isPopup;
    items_.gSampleItems.Append(sample);
    return sample;
}

} // namespace fernwick
