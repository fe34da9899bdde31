#pragma once
// Whose an error is.
#include "Add-in/platform/platform.h"

namespace fernwick {

/// The source that users read: the add-in's name for an error that no component has put its name to.
std::string errorSource(const std::string& source, const App& app);

} // namespace fernwick
