#include "Host/files/project_keys.h"
#include "Basic/case_folding.h"
#include <algorithm>

namespace host {
namespace {

constexpr std::array<std::string_view, 10> kMemberKeys = {
    "Reference",   "Object",       "Form",         "Module",   "Class",
    "UserControl", "PropertyPage", "UserDocument", "Designer", "RelatedDoc",
};

} // namespace

const std::array<SettingKey, 49> kSettingOrder = {{
    {"Type", false},
    {"ResFile32", true},
    {"IconForm", true},
    {"Startup", true},
    {"HelpFile", true},
    {"NoControlUpgrade", false},
    {"Title", true},
    {"ExeName32", true},
    {"Path32", true},
    {"Command32", true},
    {"Name", true},
    {"HelpContextID", true},
    {"Description", true},
    {"CompatibleMode", true},
    {"CompatibleEXE32", true},
    {"VersionCompatible32", true},
    {"MajorVer", false},
    {"MinorVer", false},
    {"RevisionVer", false},
    {"AutoIncrementVer", false},
    {"ServerSupportFiles", false},
    {"DllBaseAddress", false},
    {"VersionComments", true},
    {"VersionCompanyName", true},
    {"VersionFileDescription", true},
    {"VersionLegalCopyright", true},
    {"VersionLegalTrademarks", true},
    {"VersionProductName", true},
    {"CondComp", true},
    {"CompilationType", false},
    {"OptimizationType", false},
    {"FavorPentiumPro(tm)", false},
    {"CodeViewDebugInfo", false},
    {"NoAliasing", false},
    {"BoundsCheck", false},
    {"OverflowCheck", false},
    {"FlPointCheck", false},
    {"FDIVCheck", false},
    {"UnroundedFP", false},
    {"StartMode", false},
    {"Unattended", false},
    {"Retained", false},
    {"ThreadPerObject", false},
    {"MaxNumberOfThreads", false},
    {"ThreadingModel", false},
    {"RemoveUnusedControlInfo", false},
    {"DebugStartupOption", false},
    {"DebugStartupComponent", false},
    {"UseExistingBrowser", false},
}};

std::optional<MemberKind> memberKindOfKey(std::string_view key) noexcept {
    for (std::size_t i = 0; i < kMemberKeys.size(); ++i)
        if (basic::equalNoCase(key, kMemberKeys[i])) return MemberKind(i);
    return {};
}

std::string_view keyOfMemberKind(MemberKind kind) noexcept { return kMemberKeys[std::size_t(kind)]; }

bool lineHoldsName(MemberKind kind) noexcept { return kind == MemberKind::Module || kind == MemberKind::Class; }

bool isComponentKind(MemberKind kind) noexcept {
    return kind != MemberKind::Reference && kind != MemberKind::Object && kind != MemberKind::RelatedDoc;
}

std::optional<std::size_t> placeOfSetting(std::string_view key) noexcept {
    const auto found = std::find_if(kSettingOrder.begin(), kSettingOrder.end(),
                                    [&](const SettingKey& s) { return basic::equalNoCase(s.key, key); });
    if (found == kSettingOrder.end()) return {};
    return std::size_t(found - kSettingOrder.begin());
}

} // namespace host
