#include "Apps/workbench/base/component_project.h"
#include "Add-in/platform/host.h"
#include "Basic/runtime_error.h"

namespace workbench {

vbide::Ref<vbide::VBProject> projectOf(const vbide::Ref<vbide::VBComponent>& component) {
    vbide::Ref<vbide::VBProject> owner;
    (void)basic::attempt([&] { // fails for a removed component
        for (const auto& project : component->VBE()->VBProjects()->items())
            if (project->VBComponents() == component->Collection()) owner = project;
    });
    return owner;
}

} // namespace workbench
