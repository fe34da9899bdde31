#pragma once
// The procedure that a double click on a control leads to.
#include "Add-in/platform/host_project.h"

namespace workbench {

/// Shows the code of a component at the handler of the default event of one of its controls, of the form itself where
/// there is no control. A handler that is missing is made, empty. A class without events leads to the code as it is.
void openHandler(vbide::VBComponent& component, const vbide::Ref<vbide::VBControl>& control);

} // namespace workbench
