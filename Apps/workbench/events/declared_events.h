#pragma once
// The events that the classes and user controls of a project declare.
#include "Add-in/platform/host_project.h"
#include "Host/model/forms/class_events.h"
#include <string>
#include <vector>

namespace workbench {

/// In alphabetical order.
std::vector<host::ClassEvent> eventsDeclaredIn(vbide::VBComponent& component);

/// Returns the events of a user control ("Project1.Gauge") in the component's project, with those that its container
/// adds, in alphabetical order. Empty for any other class.
std::vector<host::ClassEvent> declaredEvents(vbide::VBComponent& component, const std::string& className);

} // namespace workbench
