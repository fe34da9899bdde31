#pragma once
// The library behind a cached control description.
#include "Add-in/core/modRegistry2.h"

namespace fernwick {

/// Looks up the control library of a reference that names an .OCA file. 0 when `path` now holds it. Otherwise `path`
/// holds what was registered for this version, or is as it was; the result is then 1, the number of the error that
/// came up, or 13 for a library that is registered in other versions only.
std::int32_t FindTypeLibDll(modRegistry2& registry, std::string guid, int major, int minor, std::string& path);

} // namespace fernwick
