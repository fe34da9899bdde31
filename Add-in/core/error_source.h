#pragma once
// The source of an error, as shown to users.
#include "Add-in/platform/platform.h"

namespace fernwick {

/// Returns the error's source; the add-in's name if no component has set one.
std::string errorSource(const std::string& source, const App& app);

} // namespace fernwick
