#include "Host/model/code/component_kind.h"
#include "Basic/case_folding.h"
#include "Host/files/native_path.h"
#include <algorithm>

namespace host {
namespace {

constexpr ComponentKind kComponentKinds[] = {
    {vbide::vbext_ct_StdModule, MemberKind::Module, ".bas", "", "Module", false},
    {vbide::vbext_ct_ClassModule, MemberKind::Class, ".cls", "", "Class", false},
    {vbide::vbext_ct_VBForm, MemberKind::Form, ".frm", "", "Form", true},
    {vbide::vbext_ct_VBMDIForm, MemberKind::Form, ".frm", "", "MDIForm", true},
    {vbide::vbext_ct_UserControl, MemberKind::UserControl, ".ctl", ".ctx", "UserControl", true},
    {vbide::vbext_ct_PropPage, MemberKind::PropertyPage, ".pag", ".pgx", "PropertyPage", true},
    {vbide::vbext_ct_DocObject, MemberKind::UserDocument, ".dob", ".dox", "UserDocument", true},
    {vbide::vbext_ct_ActiveXDesigner, MemberKind::Designer, ".dsr", ".dsx", "", false},
};

const ComponentKind* kindOfFile(const std::string& path) noexcept {
    const auto extension = std::string_view(path).substr(std::min(path.size(), path.rfind('.')));
    for (const auto& kind : kComponentKinds)
        if (basic::equalNoCase(extension, kind.extension)) return &kind;
    return nullptr;
}

} // namespace

const ComponentKind& kindOf(vbide::vbext_ComponentType type) noexcept {
    for (const auto& kind : kComponentKinds)
        if (kind.type == type) return kind;
    return kComponentKinds[0];
}

std::string_view newNameOf(vbide::vbext_ComponentType type) noexcept {
    const auto& kind = kindOf(type);
    return kind.type == type ? kind.newName : std::string_view();
}

vbide::vbext_ComponentType typeOf(MemberKind member, std::string_view designerClass) noexcept {
    if (basic::equalNoCase(designerClass, "VB.MDIForm") && member == MemberKind::Form) return vbide::vbext_ct_VBMDIForm;
    for (const auto& kind : kComponentKinds)
        if (kind.member == member) return kind.type;
    return vbide::vbext_ct_StdModule;
}

std::optional<MemberKind> memberKindOfFile(const std::string& path) noexcept {
    const auto* kind = kindOfFile(path);
    return kind ? std::optional(kind->member) : std::nullopt;
}

std::string companionOf(const std::string& path) {
    const auto* kind = kindOfFile(path);
    return withExtension(path, kind && !kind->companion.empty() ? kind->companion : ".frx");
}

} // namespace host
