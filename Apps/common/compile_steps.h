#pragma once
#include "Add-in/project/clsQLProject.h"
#include <string>
#include <vector>

namespace apps {

/// The command lines that a compile of the project runs, those before it first.
std::vector<std::string> allSteps(const fernwick::clsQLProject& project);

} // namespace apps
