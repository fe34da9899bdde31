#pragma once
// The texts of new components and projects.
#include "Add-in/platform/host_project.h"
#include <string>

namespace host {

/// The text of a new component, of a type that newNameOf has a name for.
std::string newSource(vbide::vbext_ComponentType type, const std::string& name);

std::string newProjectText(const std::string& name);

} // namespace host
