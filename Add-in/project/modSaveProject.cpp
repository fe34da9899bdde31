#include "Add-in/project/modSaveProject.h"
#include "Add-in/core/core_texts.h"
#include "Add-in/project/stored/project_texts.h"
#include <fmt/format.h>

namespace fernwick {

namespace {

/// Properties of a kind of component for the save dialog; the host saves the other kinds.
struct SaveableKind {
    vbide::vbext_ComponentType type;
    std::string_view extension, filter;
};
constexpr SaveableKind kSaveableKinds[] = {
    {vbide::vbext_ct_VBForm, ".frm", texts::kFormFilter},
    {vbide::vbext_ct_ClassModule, ".cls", texts::kClassFilter},
    {vbide::vbext_ct_StdModule, ".bas", texts::kModuleFilter},
};

const SaveableKind* saveableKind(const vbide::VBComponent& component) {
    const auto type = component.Type();
    for (const auto& kind : kSaveableKinds)
        if (kind.type == type) return &kind;
    return nullptr;
}

} // namespace

bool modSaveProject::SaveProject(const basic::Ref<vbide::VBProject>& project, bool ask, const std::string& question,
                                 bool showFailure, const std::string& failure) {
    Procedure here{services_.errors, "modSaveProject.SaveProject"};
    auto& user = services_.platform.interaction;
    if (!ProjectIsDirty(project)) return true;
    int answer = vbYes;
    if (ask)
        answer = here.value(
            [&] { return user.MsgBox(question, vbYesNoCancel | vbQuestion, std::string(texts::kSaveProjectTitle)); });
    if (answer == vbNo) {
        projects_.RemoveProjectComponents(projects_.GetQLProject(project));
        return true;
    }
    const bool saved = answer == vbYes && AskForSaveProject(project);
    if (!saved && answer != vbCancel && showFailure)
        here([&] { user.MsgBox(failure, vbCritical, std::string(texts::kNotSavedTitle)); });
    return saved;
}

bool modSaveProject::ProjectIsDirty(const basic::Ref<vbide::VBProject>& project) {
    Procedure here{services_.errors, "modSaveProject.ProjectIsDirty"};
    bool dirty = here.test([&] { return project->IsDirty(); });
    std::vector<basic::Ref<vbide::VBComponent>> components;
    if (!here([&] { components = project->VBComponents()->items(); }))
        dirty = true; // what cannot be determined might be lost
    for (const auto& component : components) {
        if (!here.test([&] { return saveableKind(*component.operator->()) != nullptr; })) continue;
        if (here.test([&] { return component->FileNames(1).empty() || component->IsDirty(); })) dirty = true;
    }
    return dirty;
}

bool modSaveProject::AskForSaveProject(const basic::Ref<vbide::VBProject>& project) {
    Procedure here{services_.errors, "modSaveProject.AskForSaveProject"};
    const auto folder = startFolder();
    basic::Ref<FileSystemObject> files;
    const auto err = basic::attempt([&] {
        files = basic::cast<FileSystemObject>(services_.platform.classes.CreateObject("Scripting.FileSystemObject"));
        if (!files) throw basic::RuntimeError(basic::kCantCreateObject);
    });
    if (err.Number != 0) {
        here([&] {
            services_.platform.interaction.MsgBox(std::string(texts::kNoFileSystem), vbCritical,
                                                  std::string(texts::kFernwick));
        });
        return false;
    }
    std::vector<basic::Ref<vbide::VBComponent>> components;
    if (!here([&] { components = project->VBComponents()->items(); })) return false;
    for (const auto& component : components)
        if (!saveComponent(here, files, component, folder)) return false;
    return !here.test([&] { return project->IsDirty(); }) || saveProjectFile(here, files, project, folder);
}

std::string modSaveProject::startFolder() const {
    for (const auto& folder : {services_.install.GetVBProductDir(), services_.install.GetQuinloftRootDir()})
        if (!folder.empty()) return folder;
    return services_.platform.files.HomeFolder();
}

bool modSaveProject::saveComponent(Procedure& here, const basic::Ref<FileSystemObject>& files,
                                   const basic::Ref<vbide::VBComponent>& component, const std::string& folder) {
    const SaveableKind* kind = nullptr;
    if (!here([&] { kind = saveableKind(*component.operator->()); })) return false;
    if (!kind) return true;
    auto path = here.value([&] { return component->FileNames(1); });
    if (path.empty()) {
        const auto name = here.value([&] { return component->Name(); }) + std::string(kind->extension);
        path = askForPath(here, files, folder, name, kind->filter);
        if (path.empty()) return false;
    }
    return here([&] { component->SaveAs(path); });
}

bool modSaveProject::saveProjectFile(Procedure& here, const basic::Ref<FileSystemObject>& files,
                                     const basic::Ref<vbide::VBProject>& project, const std::string& folder) {
    auto path = here.value([&] { return project->FileName(); });
    if (path.empty()) {
        const auto name = here.value([&] { return project->Name(); }) + ".vbp";
        path = askForPath(here, files, folder, name, texts::kProjectFilter);
        if (path.empty()) return false;
    }
    return here([&] { project->SaveAs(path); });
}

std::string modSaveProject::askForPath(Procedure& here, const basic::Ref<FileSystemObject>& files,
                                       const std::string& folder, const std::string& name, std::string_view filter) {
    using namespace fmt::literals;
    auto& user = services_.platform.interaction;
    CommonDialog dialog;
    dialog.CancelError = true;
    dialog.DialogTitle = texts::kSaveFileTitle;
    dialog.InitDir = folder;
    dialog.FileName = name;
    dialog.Filter = filter;
    for (int answer = vbNo; answer == vbNo;) {
        if (!showSave(dialog)) return {};
        if (!files->FileExists(dialog.FileName)) break;
        const auto question = fmt::format(texts::kReplace, "path"_a = dialog.FileName);
        answer = here.value([&] {
            return user.ask(Question::ReplaceFile, question, vbYesNo | vbExclamation,
                            std::string(texts::kReplaceTitle));
        });
        if (answer == 0) return {}; // the box could not be shown
    }
    return dialog.FileName;
}

bool modSaveProject::showSave(CommonDialog& dialog) try {
    services_.platform.interaction.ShowSave(dialog);
    return !dialog.FileName.empty();
} catch (const basic::RuntimeError& error) {
    if (error.Number != kCancelWasSelected)
        services_.errors.Error_ShowAddInError("modSaveProject.AskForSaveProject", error);
    return false;
}

} // namespace fernwick
