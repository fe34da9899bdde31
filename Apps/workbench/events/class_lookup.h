#pragma once
// Classes as the code of a component names them.
#include "Add-in/platform/host_project.h"
#include "Host/model/forms/class_events.h"
#include <string>
#include <vector>

namespace workbench {

/// Returns the component of the same project that a class name ("clsTimer", "Project1.clsTimer") means; Nothing for another
/// class.
vbide::Ref<vbide::VBComponent> componentOfClass(vbide::VBComponent& component, const std::string& className);

/// Returns the events that a variable of a class has: of a class of the project, a control of the language, of a library that
/// the project refers to, or of a device. Empty for an unknown class.
std::vector<host::ClassEvent> eventsOfVariable(vbide::VBComponent& component, const std::string& className);

} // namespace workbench
