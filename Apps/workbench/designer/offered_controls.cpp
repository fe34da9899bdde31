#include "Apps/workbench/designer/offered_controls.h"
#include "Basic/case_folding.h"
#include "Components/Language/foreign.h"

namespace workbench {

OfferedControls offeredControls(const host::HostOptions& options, vbide::VBProject& project,
                                const vbide::Ref<vbide::VBComponent>& component) {
    const auto installed = options.controlClassNames ? options.controlClassNames() : std::vector<std::string>{};
    OfferedControls offered;
    for (const auto& reference : project.References()->items()) {
        for (const auto& name : installed)
            if (basic::startsWithNoCase(name, reference->Name() + "Ctl.")) offered.ofDevices.push_back(name);
        if (const auto* library = language::foreignLibrary(reference->Guid()))
            for (const auto& group : library->groups)
                if (group.control) offered.ofLibraries.push_back(library->name + "." + group.name);
    }
    for (const auto& other : project.VBComponents()->items())
        if (other->Type() == vbide::vbext_ct_UserControl && !(other == component))
            offered.ofProject.push_back(project.Name() + "." + other->Name());
    return offered;
}

} // namespace workbench
