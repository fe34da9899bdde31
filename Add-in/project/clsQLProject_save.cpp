// Saving of files that exist.
#include "Add-in/project/clsQLProject.h"
#include "Add-in/project/stored/project_texts.h"
#include <fmt/format.h>

namespace fernwick {

bool clsQLProject::FilesHaveBeenSaved() const {
    Procedure here{services_.errors, "clsQLProject.Get_FilesHaveBeenSaved"};
    if (here.test([&] { return !files().FileExists(VBProject()->FileName()); })) return false;
    for (const auto& component : here.value([&] { return VBProject()->VBComponents()->items(); }))
        if (here.test([&] { return !files().FileExists(component->FileNames(1)); })) return false;
    return true;
}

void clsQLProject::SaveFiles() {
    Procedure here{services_.errors, "clsQLProject.SaveFiles"};
    if (HasOldFormat()) return;
    for (const auto& component : here.value([&] { return VBProject()->VBComponents()->items(); }))
        if (here.test([&] { return component->IsDirty(); })) saveComponent(here, component);
    saveProjectFile(here);
}

void clsQLProject::saveComponent(Procedure& here, const basic::Ref<vbide::VBComponent>& component) {
    const auto path = here.value([&] { return component->FileNames(1); });
    if (!files().FileExists(path)) return;
    if (here.test([&] { return warnIfReadOnly(path); })) return;

    basic::Ref<vbide::Window> window;
    bool wasVisible = false;
    if (here.test([&] { return component->HasOpenDesigner(); })) {
        here([&] { window = component->DesignerWindow(); });
        here([&] { wasVisible = window->Visible(); });
        here([&] { window->Close(); });
    }
    here([&] {
        component->SaveAs(path);
        component->IsDirty(false); // in one step, so that what could not be saved stays dirty
    });
    if (wasVisible) here([&] { component->DesignerWindow()->Visible(true); });
}

void clsQLProject::saveProjectFile(Procedure& here) {
    const auto path = here.value([&] { return VBProject()->FileName(); });
    if (!files().FileExists(path)) return;
    if (here.test([&] { return warnIfReadOnly(path); })) return;
    if (services_.templates.ProjectIsFromTemplate(VBProject())) return; // a template is never changed
    here([&] {
        VBProject()->SaveAs(path);
        VBProject()->IsDirty(false);
    });
}

bool clsQLProject::warnIfReadOnly(const std::string& path) {
    using namespace fmt::literals;
    if (!(files().GetAttributes(path) & ReadOnlyAttribute)) return false;
    services_.platform.interaction.MsgBox(fmt::format(texts::kReadOnly, "path"_a = path), vbExclamation,
                                          std::string(texts::kReadOnlyTitle));
    return true;
}

} // namespace fernwick
