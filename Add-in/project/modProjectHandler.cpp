#include "Add-in/project/modProjectHandler.h"
#include "Add-in/core/core_texts.h"

namespace fernwick {

void modProjectHandler::ClearProjectsList() {
    Procedure here{services_.errors, "modProjectHandler.ClearProjectsList"};
    for (auto count = projects_.Count(); count > 0; --count) here([&] { projects_.Remove(1); });
}

basic::Ref<clsQLProject> modProjectHandler::AddToProjectsList(const basic::Ref<vbide::VBProject>& project) {
    Procedure here{services_.errors, "modProjectHandler.AddToProjectsList"};
    if (!project) return nullptr;
    const auto qlProject = basic::make<clsQLProject>(services_);
    qlProject->VBProject(project);
    here([&] { projects_.Add(qlProject, project->Name()); });
    return qlProject;
}

void modProjectHandler::RemoveFromProjectsList(const basic::Ref<vbide::VBProject>& project) {
    Procedure here{services_.errors, "modProjectHandler.RemoveFromProjectsList"};
    here([&] { projects_.Remove(project->Name()); });
}

void modProjectHandler::RenameProjectInList(const basic::Ref<vbide::VBProject>& project, const std::string& OldName) {
    Procedure here{services_.errors, "modProjectHandler.RenameProjectInList"};
    if (OldName.empty()) return;
    const auto qlProject = here.value([&] { return projects_.Item(OldName); });
    here([&] { projects_.Remove(OldName); });
    here([&] { projects_.Add(qlProject, project->Name()); });
}

basic::Ref<clsQLProject> modProjectHandler::GetQLProject(const basic::Ref<vbide::VBProject>& project) {
    Procedure here{services_.errors, "modProjectHandler.GetQLProject"};
    return here.value([&] { return projects_.Item(project->Name()); });
}

basic::Ref<clsQLProject> modProjectHandler::FindQLProject(const basic::Ref<vbide::VBProject>& project) const {
    for (const auto& listed : projects_.items())
        if (listed && listed->VBProject() == project) return listed;
    return nullptr;
}

void modProjectHandler::RemoveProjectComponents(const basic::Ref<clsQLProject>& project) {
    Procedure here{services_.errors, "modProjectHandler.RemoveProjectComponents"};
    for (const auto& component : here.value([&] { return project->VBProject()->VBComponents()->items(); }))
        removeComponent(here, project->VBProject(), component);
}

void modProjectHandler::removeComponent(Procedure& here, const basic::Ref<vbide::VBProject>& project,
                                        const basic::Ref<vbide::VBComponent>& component) {
    auto& files = services_.platform.files;
    const bool hasCompanion = here.test([&] { return component->FileCount() > 1; });
    const auto path =
        here.value([&] { return files.BuildPath(files.GetSpecialFolder(TemporaryFolder), component->Name()); });
    here([&] {
        component->SaveAs(path);
        component->IsDirty(false);
    });
    here([&] { project->VBComponents()->Remove(component); });
    const auto remove = [&](const std::string& file) {
        if (files.FileExists(file)) here([&] { files.DeleteFile(file, true); });
    };
    remove(path);
    if (hasCompanion) remove(path + ".frx");
}

void modProjectHandler::box(std::string_view text, int buttons) {
    services_.platform.interaction.MsgBox(std::string(text), buttons, std::string(texts::kFernwick));
}

} // namespace fernwick
