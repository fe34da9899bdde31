#pragma once
// Opens the event handler for a double click on a control.
#include "Add-in/platform/host_project.h"

namespace workbench {

/// Shows the code of a component at the handler of the control's default event, or of the form's if `control` is null.
/// Adds an empty handler if there is none. For a class without events, only shows the code.
void openHandler(vbide::VBComponent& component, const vbide::Ref<vbide::VBControl>& control);

} // namespace workbench
