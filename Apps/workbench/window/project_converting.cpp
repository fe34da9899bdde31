#include "Apps/workbench/window/project_converting.h"
#include "Host/model/projects.h"

namespace workbench {

namespace {

constexpr char kSaveFirst[] = "Save the project before it is converted?";
constexpr char kNotSaved[] = "The project was not saved, so it is not converted.";

void openInstead(host::Host& host, fernwick::frmDesignTargetConverter& converter,
                 const vbide::Ref<vbide::VBProject>& project) {
    project->IsDirty(false); // references that the device lacks may have been removed from it
    host.VBProjects()->Remove(project);
    converter.conversion().finishCopy(host.VBProjects()->AddFromFile(converter.projectFile()));
}

} // namespace

void convertProject(host::Host& host, fernwick::Modules& addIn, const vbide::Ref<vbide::VBProject>& project) {
    if (!addIn.save.SaveProject(project, true, kSaveFirst, true, kNotSaved)) return;
    auto& converter = addIn.converter;
    converter.ShowModal();
    converter.Unload();
    if (converter.doReloadProject()) openInstead(host, converter, project);
}

} // namespace workbench
