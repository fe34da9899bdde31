// What a project is, and what is worked out from the host.
#include "Add-in/project/clsQLProject.h"
#include "Add-in/core/core_texts.h"
#include "Add-in/core/guids.h"
#include "Add-in/project/property_sections.h"
#include "Basic/text_search.h"

namespace fernwick {

namespace {
constexpr const char* kStartUpMarker = "{8A515BDE-2BCC-4ed4-8F0A-99E4522CC1BB}";
constexpr const char* kOldFormat = "1.0";
} // namespace

std::string clsQLProject::withProjectName(const char* procedure) const {
    std::string name;
    (void)basic::attempt([&] { name = project_->Name(); });
    return name + " " + procedure;
}

int clsQLProject::box(std::string_view text, int buttons) {
    return services_.platform.interaction.MsgBox(std::string(text), buttons, std::string(texts::kFernwick));
}

std::string clsQLProject::ProjectName() const {
    Procedure here{services_.errors, "clsQLProject.Get_ProjectName"};
    return here.value([&] { return project_->Name(); });
}

std::string clsQLProject::DisplayName() const {
    Procedure here{services_.errors, "clsQLProject.Get_DisplayName"};
    const auto name = here.value([&] { return project_->Name(); });
    return SpacesInNameEnabled() ? basic::Replace(name, "_", " ") : name;
}

std::string clsQLProject::ProjectPath() const {
    Procedure here{services_.errors, "clsQLProject.Get_ProjectPath"};
    return here.value([&] { return files().GetParentFolderName(project_->FileName()); });
}

bool clsQLProject::IsQuinloftProject() const { return readBoolean("IsQuinloftProject"); }

std::string clsQLProject::ProjectVersion() const {
    const auto version = readText("ProjectVersion");
    return version.empty() ? kOldFormat : version;
}

bool clsQLProject::IsStartUpProject() const { return readText("StartUpProject") == kStartUpMarker; }

std::int32_t clsQLProject::NumForms() const {
    Procedure here{services_.errors, "clsQLProject.Get_NumForms"};
    std::int32_t forms = 0;
    for (const auto& component : here.value([&] { return project_->VBComponents()->items(); }))
        if (here.test([&] { return component->Type() == vbide::vbext_ct_VBForm; })) ++forms;
    return forms;
}

void clsQLProject::CreateNewModId() {
    Procedure here{services_.errors, "clsQLProject.CreateNewModId"};
    here([&] { project_->WriteProperty(kGlobalSection, "MODID", CreateGUID()); });
}

} // namespace fernwick
