#pragma once
#include <functional>

namespace workbench {

/// Runs an action of the user and shows an error in a box: no exception may cross Qt's loop.
using Run = std::function<void(const std::function<void()>&)>;

} // namespace workbench
