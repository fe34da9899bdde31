#pragma once
#include <string>

namespace cli {

/// FERNWICK_VERSION is the project's version in the top CMakeLists.txt.
inline std::string versionLine() { return "fernwick " FERNWICK_VERSION; }

} // namespace cli
