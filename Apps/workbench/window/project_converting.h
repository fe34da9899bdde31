#pragma once
#include "Add-in/core/connect/Modules.h"
#include "Host/model/host.h"

namespace workbench {

/// Lets the user convert an open Fernwick project to another device, after a question about unsaved changes. A copy takes
/// the place of the project. Errors of opening the copy go to the caller.
void convertProject(host::Host& host, fernwick::Modules& addIn, const vbide::Ref<vbide::VBProject>& project);

} // namespace workbench
