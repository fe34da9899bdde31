#pragma once
// The texts of the code windows and the find bar.

namespace workbench::code_texts {

// finding and replacing
inline constexpr auto kWentRound = "The search continued from the beginning.",
                      kWentRoundUp = "The search continued from the end.";
inline constexpr auto kNotFound = "\"%1\" was not found in the %2.";
inline constexpr auto kReplaced = "%1 replaced.", kReplacedInModules = "%1 replaced in %2 modules.";
inline constexpr auto kRefused = "Nothing was replaced in %1: see the message.";

// characters that a file cannot contain, and names that a project does not declare
inline constexpr auto kMissingCharacter = "The code page of this file has no character \"%1\".";
inline constexpr auto kNotDeclared = "\"%1\" is not declared in this project.";

// marks
inline constexpr auto kBreakpoint =
                          "Breakpoint. Programs do not stop at it in this version, which has no debugger yet.",
                      kNoBreakpoint = "A breakpoint can only be set on a statement that runs.";

} // namespace workbench::code_texts
