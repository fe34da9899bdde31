#pragma once
// The user of this computer.
#include <string>

namespace qlpipe {

/// Returns the user name, or "" if the system does not know it.
[[nodiscard]] std::string userName();
/// Returns $HOME, or the home folder in the user database.
[[nodiscard]] std::string homeFolder();

} // namespace qlpipe
