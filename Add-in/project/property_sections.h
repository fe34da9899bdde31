#pragma once
// Sections of the project file that hold the settings.

namespace fernwick {

inline constexpr const char* kGlobalSection = "Quinloft Global";
inline constexpr const char* kCompilerOptionsSection = "Quinloft Compiler Options";
inline constexpr const char* kDependenciesSection = "Quinloft Components And Tavlet Dependencies Section";

} // namespace fernwick
