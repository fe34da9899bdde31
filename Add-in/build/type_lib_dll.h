#pragma once
// Finds the control library that a cached type description (.oca) was made from.
#include "Add-in/core/modRegistry2.h"

namespace fernwick {

/// Looks up the control library of a reference that names an .OCA file. Returns 0 if `path` now holds it. Otherwise
/// `path` is unchanged or holds what was registered for this version, and the result is 1, the number of the error that
/// occurred, or 13 for a library that is registered in other versions only.
std::int32_t FindTypeLibDll(modRegistry2& registry, std::string guid, int major, int minor, std::string& path);

} // namespace fernwick
