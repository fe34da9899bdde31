#pragma once
// Who works at this computer.
#include <string>

namespace qlpipe {

/// The name under which the user is logged in here; "" where the system doesn't know him.
[[nodiscard]] std::string userName();
/// $HOME, else what the system has for the user.
[[nodiscard]] std::string homeFolder();

} // namespace qlpipe
