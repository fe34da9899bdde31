#include "Add-in/core/modAddinPrefsManagement.h"
#include "Add-in/core/preference_keys.h"
#include "Basic/conversions.h"

namespace fernwick {

namespace {
constexpr std::int32_t kNoColumnWidth = -1;
} // namespace

std::int32_t modAddinPrefsManagement::GetZoomWinState() {
    const RegistryKey key{registry_, registry_.OpenOrCreateKey(HKEY_CURRENT_USER, kAddinPrefsKey, KEY_READ)};
    if (key) {
        const auto state = registry_.GetStringValue(key.handle(), "ZoomWinState");
        if (state.ok() && state.text == "0") return 0;
        if (state.ok() && state.text == "1") return 1;
    }
    SetZoomWinState(1);
    return 1;
}

void modAddinPrefsManagement::SetZoomWinState(std::int32_t state) {
    const auto access = KEY_QUERY_VALUE | KEY_SET_VALUE;
    const RegistryKey key{registry_, registry_.OpenKey(HKEY_CURRENT_USER, kAddinPrefsKey, access)};
    if (key) registry_.SetValue(key.handle(), "ZoomWinState", std::to_string(state), REG_SZ);
}

bool modAddinPrefsManagement::GetStartTutorial() {
    const RegistryKey key{registry_, registry_.OpenKey(HKEY_LOCAL_MACHINE, kAddinPrefsKey, KEY_QUERY_VALUE)};
    if (!key) return true;
    const auto tutorial = registry_.GetStringValue(key.handle(), "StartTutorial");
    if (tutorial.ok() && tutorial.type == REG_SZ) return basic::CBool(tutorial.text);
    SetStartTutorial(true);
    return true;
}

void modAddinPrefsManagement::SetStartTutorial(bool value) {
    const RegistryKey key{registry_, registry_.OpenKey(HKEY_LOCAL_MACHINE, kAddinPrefsKey, KEY_SET_VALUE)};
    if (key) registry_.SetValue(key.handle(), "StartTutorial", value ? "True" : "False", REG_SZ);
}

bool modAddinPrefsManagement::GetQuinloftCompileWarning() {
    const RegistryKey key{registry_, registry_.OpenOrCreateKey(HKEY_CURRENT_USER, kAddInKey, KEY_ALL_ACCESS)};
    if (!key) return false;
    const auto warning = registry_.GetValue(key.handle(), "CompileWarning");
    const auto* number = std::get_if<std::int32_t>(&warning.data);
    return warning.ok() && warning.type == REG_DWORD && number && *number > 0;
}

void modAddinPrefsManagement::SetQuinloftCompileWarning(bool value) {
    const RegistryKey key{registry_, registry_.OpenOrCreateKey(HKEY_CURRENT_USER, kAddInKey, KEY_ALL_ACCESS)};
    if (key) registry_.SetValue(key.handle(), "CompileWarning", std::int32_t{value}, REG_DWORD);
}

std::int32_t modAddinPrefsManagement::GetRecentProjColWidth() {
    Procedure here{errors_, "modAddinPrefsManagement.GetRecentProjColWidth"};
    std::int32_t width = kNoColumnWidth;
    here([&] { width = storedColumnWidth(); });
    if (width == kNoColumnWidth || width >= 1) return width;
    SetRecentProjColWidth(kNoColumnWidth);
    return kNoColumnWidth;
}

std::int32_t modAddinPrefsManagement::storedColumnWidth() {
    const RegistryKey key{registry_, registry_.OpenKey(HKEY_CURRENT_USER, kAddInKey, KEY_QUERY_VALUE)};
    if (!key) return kNoColumnWidth;
    const auto width = registry_.GetValue(key.handle(), "RecProjColW");
    return width.ok() ? registryNumber(width.data) : kNoColumnWidth;
}

void modAddinPrefsManagement::SetRecentProjColWidth(std::int32_t width) {
    Procedure here{errors_, "modAddinPrefsManagement.SetRecentProjColWidth"};
    here([&] { storeNumber("RecProjColW", width); });
}

std::int32_t modAddinPrefsManagement::GetProjectManagerState() {
    Procedure here{errors_, "modAddinPrefsManagement.GetProjectManagerState"};
    const RegistryKey key{registry_, registry_.OpenOrCreateKey(HKEY_CURRENT_USER, kAddInKey, KEY_QUERY_VALUE)};
    if (!key) return 0;
    const auto state = registry_.GetValue(key.handle(), "ProjMgrState");
    return state.ok() ? here.value([&] { return registryNumber(state.data); }) : 0;
}

void modAddinPrefsManagement::SetProjectManagerState(std::int32_t state) {
    Procedure here{errors_, "modAddinPrefsManagement.SetProjectManagerState"};
    here([&] { storeNumber("ProjMgrState", state); });
}

void modAddinPrefsManagement::storeNumber(const char* name, std::int32_t number) {
    const RegistryKey key{registry_, registry_.OpenOrCreateKey(HKEY_CURRENT_USER, kAddInKey, KEY_SET_VALUE)};
    if (key) registry_.SetValue(key.handle(), name, number, REG_DWORD);
}

} // namespace fernwick
