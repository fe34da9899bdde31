#pragma once
// What a class must declare that implements another one.
#include "Add-in/platform/host_project.h"
#include "Host/model/forms/class_events.h"
#include <vector>

namespace workbench {

/// Returns the public procedures of a component, and those of its public variables, as another class declares them that
/// implements it: in the order of the code. A property has one for each of its procedures.
std::vector<host::ClassEvent> interfaceMembers(vbide::VBComponent& implemented);

} // namespace workbench
