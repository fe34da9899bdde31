#pragma once
#include "Add-in/platform/host_project.h"
#include "Host/model/host_options.h"
#include <string>
#include <vector>

namespace workbench {

/// Returns the classes that a component of a project can contain besides the language's own: those of the control
/// libraries that the project refers to, installed ones and those that came with the language, and the project's other
/// user controls.
std::vector<std::string> offeredControls(const host::HostOptions& options, vbide::VBProject& project,
                                         const vbide::Ref<vbide::VBComponent>& component);

} // namespace workbench
