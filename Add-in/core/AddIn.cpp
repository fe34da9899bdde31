#include "Add-in/core/AddIn.h"
#include "Add-in/core/preference_keys.h"
#include <fmt/format.h>

namespace fernwick {

namespace {
constexpr const char* kHostVariable = "VBInstance-3AD1D370-2E73-417D-B685-0E1756D55411";
} // namespace

void AddIn::SaveVBinstPointer(const basic::Ref<vbide::VBE>& VBInst) {
    gVBInstance = VBInst;
    const auto address = reinterpret_cast<std::uintptr_t>(VBInst.shared().get());
    environment_.SetEnvironmentVariable(kHostVariable, fmt::format("{:X}", address));
}

bool AddIn::GetQuinloftSaveWarning() try {
    const auto openOrCreate = [&] {
        auto key = registry_.OpenKey(HKEY_CURRENT_USER, kAddInKey, KEY_QUERY_VALUE);
        if (!key) registry_.CreateKey(HKEY_CURRENT_USER, kAddInKey, key);
        return key;
    };
    const RegistryKey key{registry_, openOrCreate()};
    if (!key) return true;
    const auto warning = registry_.GetValue(key.handle(), "SaveWarning");
    return !(warning.ok() && warning.type == REG_DWORD && registryNumber(warning.data) == 0);
} catch (const basic::RuntimeError& error) {
    errors_.Error_ShowAddInError("AddIn.GetQuinloftSaveWarning", error);
    return true;
}

void AddIn::SetQuinloftSaveWarning(bool value) try {
    const RegistryKey key{registry_, registry_.OpenOrCreateKey(HKEY_CURRENT_USER, kAddInKey, KEY_ALL_ACCESS)};
    if (key) registry_.SetValue(key.handle(), "SaveWarning", value ? -1 : 0, REG_DWORD);
} catch (const basic::RuntimeError& error) { errors_.Error_ShowAddInError("AddIn.SetQuinloftSaveWarning", error); }

} // namespace fernwick
