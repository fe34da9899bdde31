#pragma once
#include <string>

namespace host {

/// $HOME, else what the system's list of users says, else the root folder.
std::string homeFolder();

} // namespace host
