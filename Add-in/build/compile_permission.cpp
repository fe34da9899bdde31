#include "Add-in/build/compile_permission.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/message_numbers.h"
#include <fmt/format.h>

namespace fernwick {

using namespace fmt::literals;

bool CompilePermission::canCompile(const Project& project) {
    Procedure here{services_.errors, "frmCompile.canCompile"};
    const auto qlProject = services_.projects.GetQLProject(project);
    if (!filesHaveBeenSaved(here, qlProject)) return false;
    const bool clean = !ProjectIsDirty(project);
    const bool current = lastCompileVersionGood(project);
    return (clean && current) || saveForCompile(here, project, qlProject);
}

bool CompilePermission::readyForValidation(const Project& project) {
    Procedure here{services_.errors, "frmCompile.readyForValidation"};
    const auto qlProject = services_.projects.GetQLProject(project);
    if (!filesHaveBeenSaved(here, qlProject)) return false;
    return !ProjectIsDirty(project) || saveForCompile(here, project, qlProject);
}

/// Returns whether the files were saved before. If not, informs the user and starts the host's Save command, and the
/// compile ends.
bool CompilePermission::filesHaveBeenSaved(Procedure& here, const QLProject& qlProject) {
    if (!here.test([&] { return !qlProject->FilesHaveBeenSaved(); })) return true;
    here([&] {
        services_.platform.interaction.MsgBox(build_texts::kSaveFilesFirst, vbInformation, build_texts::kTitle);
    });
    here([&] { services_.menu.saveProjectItem()->Execute(); });
    return false;
}

bool CompilePermission::saveForCompile(Procedure& here, const Project& project, const QLProject& qlProject) {
    if (!here.test([&] { return qlProject->Autosave(); }) && !askToSave(here, project, qlProject)) return false;
    here([&] { qlProject->SaveFiles(); });
    const bool saved = !ProjectIsDirty(project);
    if (!saved)
        services_.messages.AddProjectCompileError(
            project, fmt::format(build_texts::kSavingFailed, "address"_a = services_.platform.app.SupportWebAddress),
            "", 0, message_numbers::kFilesNotSaved);
    return saved;
}

/// Returns true for Yes, and then stores the tick as Autosave: later compiles save without asking.
bool CompilePermission::askToSave(Procedure& here, const Project& project, const QLProject& qlProject) {
    std::string question;
    here([&] { question = fmt::format(build_texts::kMustBeSaved, "project"_a = project->Name()); });
    const bool yes = here.value([&] { return services_.saveFiles.AskForProjectSave(question); });
    const bool ticked = services_.saveFiles.chkWarning.Value() == 1;
    here([&] { services_.saveFiles.Unload(); });
    if (yes) here([&] { qlProject->Autosave(ticked); });
    return yes;
}

bool CompilePermission::lastCompileVersionGood(const Project& project) {
    Procedure here{services_.errors, "frmCompile.lastCompileVersionGood"};
    const auto qlProject = services_.projects.GetQLProject(project);
    return here.value([&] { return qlProject->LastCompileVersion() == kCompilerVersion; });
}

bool CompilePermission::ProjectIsDirty(const Project& project) {
    Procedure here{services_.errors, "frmCompile.ProjectIsDirty"};
    for (const auto& component : here.value([&] { return project->VBComponents()->items(); }))
        if (here.test([&] { return !component->Saved(); })) return true;
    return false;
}

} // namespace fernwick
