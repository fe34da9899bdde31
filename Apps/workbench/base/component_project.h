#pragma once
#include "Add-in/platform/host_project.h"

namespace workbench {

/// The project of a component; null if the component was removed.
vbide::Ref<vbide::VBProject> projectOf(const vbide::Ref<vbide::VBComponent>& component);

} // namespace workbench
