// The stored positions of the toolbars.
#include "Add-in/core/modAddinPrefsManagement.h"
#include "Add-in/core/preference_keys.h"
#include "Basic/conversions.h"

namespace fernwick {

namespace {

using Bar = basic::Ref<office::CommandBar>;

/// A property of a toolbar and the prefix of its value's name.
struct ToolbarValue {
    const char* tag;
    std::string (*written)(const Bar&);
    void (*read)(const Bar&, const std::string&);
};

/// In reading order: a bar accepts a row only once it is docked.
constexpr ToolbarValue kToolbarValues[] = {
    {"POS:", [](const Bar& bar) { return std::to_string(bar->Position()); },
     [](const Bar& bar, const std::string& text) { bar->Position(basic::CLng(text)); }},
    {"INDEX:", [](const Bar& bar) { return std::to_string(bar->RowIndex()); },
     [](const Bar& bar, const std::string& text) { bar->RowIndex(basic::CLng(text)); }},
    {"LEFT:", [](const Bar& bar) { return std::to_string(bar->Left()); },
     [](const Bar& bar, const std::string& text) { bar->Left(basic::CLng(text)); }},
    {"TOP:", [](const Bar& bar) { return std::to_string(bar->Top()); },
     [](const Bar& bar, const std::string& text) { bar->Top(basic::CLng(text)); }},
    {"VISIBLE:", [](const Bar& bar) { return basic::CStr(bar->Visible()); },
     [](const Bar& bar, const std::string& text) { bar->Visible(basic::CBool(text)); }},
};

} // namespace

void modAddinPrefsManagement::SaveToolbarState(const Bar& bar) {
    Procedure here{errors_, "modAddinPrefsManagement.SaveToolbarState"};
    const RegistryKey key{registry_, registry_.OpenOrCreateKey(HKEY_CURRENT_USER, kAddinPrefsKey, KEY_ALL_ACCESS)};
    if (!key) return;
    for (const auto& value : kToolbarValues)
        here([&] { registry_.SetValue(key.handle(), value.tag + bar->Name(), value.written(bar), REG_SZ); });
}

bool modAddinPrefsManagement::ReadToolbarState(const Bar& bar) {
    Procedure here{errors_, "modAddinPrefsManagement.ReadToolbarState"};
    const RegistryKey key{registry_, registry_.OpenOrCreateKey(HKEY_CURRENT_USER, kAddinPrefsKey, KEY_ALL_ACCESS)};
    if (!key) return false;
    for (const auto& value : kToolbarValues) {
        const auto stored = here.value([&] { return registry_.GetStringValue(key.handle(), value.tag + bar->Name()); });
        if (!stored.ok() || stored.type != REG_SZ) return false;
        here([&] { value.read(bar, stored.text); });
    }
    return true;
}

} // namespace fernwick
