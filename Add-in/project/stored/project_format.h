#pragma once
// Versions of the project format.

namespace fernwick {

/// The format of projects that were made before versions were stored.
inline constexpr const char* kOldProjectFormat = "1.0";

} // namespace fernwick
