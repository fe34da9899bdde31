#pragma once
#include <string>

namespace host {

/// Returns $HOME, else the user's home folder in the password database, else the root folder.
std::string homeFolder();

} // namespace host
