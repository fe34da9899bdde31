#include "Add-in/core/modReferencesManagement.h"

namespace fernwick {

namespace {
constexpr const char* kClassesKey = "SOFTWARE\\Quinloft\\Classes";
} // namespace

void modReferencesManagement::SaveQuinloftClasses() {
    Procedure here{errors_, "modReferencesManagement.SaveQuinloftClasses"};
    gQuinloftClasses.clear();
    const RegistryKey classes{registry_, registry_.OpenKey(HKEY_LOCAL_MACHINE, kClassesKey, KEY_READ)};
    if (!classes) return;
    const auto names = registry_.EnumKeys(classes.handle());
    if (!names) return;
    for (const auto& name : *names) {
        const RegistryKey entry{registry_, registry_.OpenKey(classes.handle(), name, KEY_READ)};
        if (!entry) continue;
        const auto progId = registry_.GetStringValue(entry.handle(), "name");
        if (progId.ok()) here([&] { gQuinloftClasses.Add(progId.text, name); });
    }
}

bool modReferencesManagement::IsQuinloftControl(const std::string& name) const {
    return gQuinloftClasses.contains(name);
}

std::string modReferencesManagement::GetProgID(const std::string& clsid) const {
    Procedure here{errors_, "modProjectHandler.GetProgID"};
    return here.value([&] {
        std::string classId;
        return classes_.CLSIDFromString(clsid, classId) ? classes_.ProgIDFromCLSID(classId) : std::string{};
    });
}

} // namespace fernwick
