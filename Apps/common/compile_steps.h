#pragma once
#include "Add-in/project/clsQLProject.h"
#include <string>
#include <vector>

namespace apps {

/// Returns the project's compile steps, those before the compile first.
std::vector<std::string> allSteps(const fernwick::clsQLProject& project);

} // namespace apps
