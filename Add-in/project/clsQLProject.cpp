#include "Add-in/project/clsQLProject.h"
#include "Add-in/core/core_texts.h"
#include "Add-in/core/guids.h"
#include "Basic/text.h"
#include "Basic/text_search.h"

namespace fernwick {

namespace {
constexpr const char* kStartUpMarker = "{8A515BDE-2BCC-4ed4-8F0A-99E4522CC1BB}";
} // namespace

int clsQLProject::box(std::string_view text, int buttons) {
    return services_.platform.interaction.MsgBox(std::string(text), buttons, std::string(texts::kFernwick));
}

std::string clsQLProject::ProjectName() const {
    Procedure here{services_.errors, "clsQLProject.Get_ProjectName"};
    return here.value([&] { return VBProject()->Name(); });
}

std::string clsQLProject::DisplayName() const {
    Procedure here{services_.errors, "clsQLProject.Get_DisplayName"};
    const auto name = here.value([&] { return VBProject()->Name(); });
    return SpacesInNameEnabled() ? basic::Replace(name, "_", " ") : name;
}

bool clsQLProject::IsStartUpProject() const {
    bool isMarked = false;
    (void)basic::attempt([&] { isMarked = store().read(kGlobalSection, "StartUpProject") == kStartUpMarker; });
    return isMarked;
}

std::int32_t clsQLProject::NumForms() const {
    Procedure here{services_.errors, "clsQLProject.Get_NumForms"};
    std::int32_t forms = 0;
    for (const auto& component : here.value([&] { return VBProject()->VBComponents()->items(); }))
        if (here.test([&] { return component->Type() == vbide::vbext_ct_VBForm; })) ++forms;
    return forms;
}

void clsQLProject::CreateNewModId() {
    Procedure here{services_.errors, "clsQLProject.CreateNewModId"};
    here([&] { VBProject()->WriteProperty(kGlobalSection, "MODID", CreateGUID()); });
}

void clsQLProject::IncerementRevision(std::int32_t) { // sic
    const auto info = application();
    if (info.incrementsRevision()) info.incrementRevision();
}

void clsQLProject::WriteComponentDependencies(const std::vector<std::string>& ComponentModIDs) {
    std::vector<std::string> capitals;
    for (const auto& id : ComponentModIDs) capitals.push_back(basic::UCase(id));
    componentDependencies_.write(capitals);
}

void clsQLProject::WriteTavletFileDependencies(const std::vector<std::string>& TavletFileDependencies) {
    tavletFileDependencies_.write(TavletFileDependencies);
}

void clsQLProject::WriteProjectFontDependencies(const std::vector<std::string>& ProjectFontDependencies) {
    fontDependencies_.write(ProjectFontDependencies);
}

void clsQLProject::GetCompileTargetsList(Array<std::string>& newCompileTargetsList) const {
    compileTargets_.get(newCompileTargetsList);
}

void clsQLProject::SetCompileTargetsList(const Array<std::string>& newCompileTargets) {
    compileTargets_.set(newCompileTargets);
}

bool clsQLProject::IsSetCompileTarget(const std::string& compareTargetName) const {
    return compileTargets_.contains(compareTargetName);
}

} // namespace fernwick
