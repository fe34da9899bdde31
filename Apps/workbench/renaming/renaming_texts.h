#pragma once
// The texts of the dialog that renames names.

namespace workbench::renaming_texts {

inline constexpr auto kTitle = "Rename";
inline constexpr auto kLabel = "&New name of %1:";
inline constexpr auto kReading = "Reading the project...";
inline constexpr auto kChecking = "Checking that all names keep their meaning...";
inline constexpr auto kChanged = "Lines that change: %1";
inline constexpr auto kUnknown = "Not changed, because their meaning is not known before the program runs: %1";
inline constexpr auto kOutdated = "The code was changed meanwhile. Nothing was renamed; try again.";
inline constexpr auto kRefused = "A module cannot be changed. Nothing was renamed.";

} // namespace workbench::renaming_texts
