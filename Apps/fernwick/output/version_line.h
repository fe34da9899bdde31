#pragma once
#include "Apps/common/version.h"
#include <string>

namespace cli {

/// The output of --version.
inline std::string versionLine() { return std::string("fernwick ") + apps::kVersion; }

} // namespace cli
