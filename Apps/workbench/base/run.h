#pragma once
#include <functional>

namespace workbench {

/// Runs what the user asked for and shows an error in a box: no exception may cross Qt's loop.
using Run = std::function<void(const std::function<void()>&)>;

} // namespace workbench
