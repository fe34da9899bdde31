#pragma once
// Versions of the project format.

namespace fernwick {

/// The format of projects that were made before versions were stored.
inline constexpr const char* kOldProjectFormat = "1.0";
inline constexpr const char* kProjectFormat = "3.5";

} // namespace fernwick
