#include "Add-in/project/stored/modProjectTemplates.h"
#include "Add-in/core/core_texts.h"
#include "Add-in/project/stored/project_texts.h"

namespace fernwick {

bool modProjectTemplates::ProjectIsFromTemplate(const basic::Ref<vbide::VBProject>& project) {
    Procedure here{errors_, "modProjectHandler.ProjectIsFromTemplate"};
    const auto folder = here.value([&] { return files_.Canonical(files_.GetParentFolderName(project->FileName())); });
    const auto ofHost = here.value([&] { return files_.Canonical(GetTemplatePath()); });
    if (!files_.FolderExists(ofHost)) here([&] { warn(texts::kNoHostTemplates); });
    const auto ofSystem = here.value([&] { return install_.installed("VB Toolkit\\Template\\Projects"); });
    if (!files_.FolderExists(ofSystem)) here([&] { warn(texts::kNoTemplates); });
    return folder == ofHost || (folder == ofSystem && !ofSystem.empty());
}

std::string modProjectTemplates::GetTemplatePath() {
    Procedure here{errors_, "modProjectHandler.GetTemplatePath"};
    const auto folder = here.value([&] { return addIn_.gVBInstance->TemplatePath(); });
    if (!folder.empty()) return files_.BuildPath(folder, "Projects");
    here([&] { warn(texts::kNoTemplatePath); });
    return {};
}

void modProjectTemplates::warn(std::string_view text) {
    user_.MsgBox(std::string(text), vbExclamation, std::string(texts::kFernwick));
}

} // namespace fernwick
