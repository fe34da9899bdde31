// The stored lists: My Devices and the groups of the toolbox.
#include "Add-in/core/modAddinPrefsManagement.h"
#include "Add-in/core/preference_keys.h"
#include "Add-in/core/stored_lists.h"

namespace fernwick {

void modAddinPrefsManagement::loadMyDevices() try {
    gMyDevices.clear();
    const RegistryKey key{registry_, registry_.OpenKey(HKEY_CURRENT_USER, kMyDevicesKey, KEY_QUERY_VALUE)};
    if (key) readMyDevices(key.handle());
} catch (const basic::RuntimeError& error) {
    errors_.Error_ShowAddInError("modAddinPrefsManagement.loadMyDevices", error);
    gMyDevices.clear();
}

void modAddinPrefsManagement::readMyDevices(std::uint32_t key) {
    const auto stored = registry_.GetValue(key, "MyDeviceCount");
    if (!stored.ok()) return;
    const auto count = registryNumber(stored.data);
    if (count > kMostStoredEntries) return; // damaged
    for (std::int32_t i = 0; i < count; ++i) {
        auto device = registry_.GetStringValue(key, "MyDevice" + std::to_string(i));
        if (device.ok()) gMyDevices.push_back(std::move(device.text));
    }
}

bool modAddinPrefsManagement::saveMyDevices() try {
    requireStorableCount(gMyDevices.size());
    const RegistryKey key{registry_, registry_.OpenOrCreateKey(HKEY_CURRENT_USER, kMyDevicesKey, KEY_ALL_ACCESS)};
    if (!key) return true;
    const auto count = std::int32_t(gMyDevices.size());
    if (registry_.SetValue(key.handle(), "MyDeviceCount", count, REG_DWORD) != ERROR_SUCCESS) return true;
    for (std::int32_t i = 0; i < count; ++i)
        registry_.SetValue(key.handle(), "MyDevice" + std::to_string(i), gMyDevices[std::size_t(i)], REG_SZ);
    return true;
} catch (const basic::RuntimeError& error) {
    errors_.Error_ShowAddInError("modAddinPrefsManagement.saveMyDevices", error);
    return false;
}

bool modAddinPrefsManagement::CreateTavletCategoryList(basic::Collection<std::string>& namesByData,
                                                       basic::Collection<std::string>& dataByName) {
    namesByData.clear();
    dataByName.clear();
    const RegistryKey key{registry_, registry_.OpenKey(HKEY_LOCAL_MACHINE, kTavletGroupsKey, KEY_QUERY_VALUE)};
    if (!key) return false;
    const auto values = registry_.EnumValues(key.handle());
    if (!values || values->empty()) return false;
    basic::Suppressed quietly; // a second value with the same position is ignored
    for (const auto& value : *values) {
        quietly([&] { namesByData.Add(value.name, value.text); });
        quietly([&] { dataByName.Add(value.text, value.name); });
    }
    return true;
}

} // namespace fernwick
