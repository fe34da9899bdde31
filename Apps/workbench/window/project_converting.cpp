#include "Apps/workbench/window/project_converting.h"
#include "Host/model/projects.h"

namespace workbench {

namespace {

constexpr char kTitle[] = "Fernwick";
constexpr char kSaveFirst[] = "The project has unsaved changes. Save them and continue?";
constexpr char kNotSaved[] = "The project was not saved, so it is not converted.";

/// The files on disk are converted.
bool isSaved(fernwick::Modules& addIn, const vbide::Ref<vbide::VBProject>& project) {
    using namespace fernwick;
    if (!addIn.save.ProjectIsDirty(project)) return true;
    return addIn.platform.interaction.MsgBox(kSaveFirst, vbOKCancel + vbQuestion, kTitle) == vbOK &&
           addIn.save.SaveProject(project, false, "", true, kNotSaved);
}

void openInstead(host::Host& host, fernwick::frmDesignTargetConverter& converter,
                 const vbide::Ref<vbide::VBProject>& project) {
    project->IsDirty(false); // references that the device lacks may have been removed from it
    host.VBProjects()->Remove(project);
    converter.conversion().finishCopy(host.VBProjects()->AddFromFile(converter.projectFile()));
}

} // namespace

void convertProject(host::Host& host, fernwick::Modules& addIn, const vbide::Ref<vbide::VBProject>& project) {
    if (!isSaved(addIn, project)) return;
    auto& converter = addIn.converter;
    converter.ShowModal();
    converter.Unload();
    if (converter.doReloadProject()) openInstead(host, converter, project);
}

} // namespace workbench
