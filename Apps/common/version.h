#pragma once

namespace apps {

/// The project's version in the top CMakeLists.txt.
extern const char* const kVersion;

} // namespace apps
