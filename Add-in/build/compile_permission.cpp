// Whether a project may be compiled or validated, and the saving that comes before.
#include "Add-in/build/frmCompile.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/message_numbers.h"

namespace fernwick {

bool frmCompile::canCompile(const Project& project) {
    Procedure here{use_.errors, "frmCompile.canCompile"};
    const auto qlProject = use_.projects.GetQLProject(project);
    if (!filesHaveBeenSaved(here, qlProject)) return false;
    const bool clean = !ProjectIsDirty(project);
    const bool current = lastCompileVersionGood(project);
    return (clean && current) || saveForCompile(here, project, qlProject);
}

bool frmCompile::readyForValidation(const Project& project) {
    Procedure here{use_.errors, "frmCompile.readyForValidation"};
    const auto qlProject = use_.projects.GetQLProject(project);
    if (!filesHaveBeenSaved(here, qlProject)) return false;
    return !ProjectIsDirty(project) || saveForCompile(here, project, qlProject);
}

/// Otherwise tells the user and starts the host's own saving, which this run doesn't wait for.
bool frmCompile::filesHaveBeenSaved(Procedure& here, const basic::Ref<clsQLProject>& qlProject) {
    if (!here.test([&] { return !qlProject->FilesHaveBeenSaved(); })) return true;
    box(here, build_texts::kSaveFilesFirst, vbInformation);
    here([&] { use_.menu.saveProjectItem()->Execute(); });
    return false;
}

bool frmCompile::saveForCompile(Procedure& here, const Project& project, const basic::Ref<clsQLProject>& qlProject) {
    if (!here.test([&] { return qlProject->Autosave(); }) && !askToSave(here, project, qlProject)) return false;
    here([&] { qlProject->SaveFiles(); });
    const bool saved = !ProjectIsDirty(project);
    if (!saved)
        use_.messages.AddProjectCompileError(project, build_texts::kSavingFailed + supportAddress(), "", 0,
                                             message_numbers::kFilesNotSaved);
    return saved;
}

/// On Yes the tick tells whether to ask again.
bool frmCompile::askToSave(Procedure& here, const Project& project, const basic::Ref<clsQLProject>& qlProject) {
    std::string question;
    here([&] { question = build_texts::kMustBeSavedBefore + project->Name() + build_texts::kMustBeSavedAfter; });
    const bool yes = here.value([&] { return use_.saveFiles.AskForProjectSave(question); });
    const bool ticked = use_.saveFiles.chkWarning.Value() == 1;
    here([&] { use_.saveFiles.Unload(); });
    if (yes) here([&] { qlProject->Autosave(ticked); });
    return yes;
}

bool frmCompile::ProjectIsDirty(const Project& project) {
    Procedure here{use_.errors, "frmCompile.ProjectIsDirty"};
    for (const auto& component : here.value([&] { return project->VBComponents()->items(); }))
        if (here.test([&] { return !component->Saved(); })) return true;
    return false;
}

} // namespace fernwick
