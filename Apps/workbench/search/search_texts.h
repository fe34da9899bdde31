#pragma once
// The texts of the search results.

namespace workbench::search_texts {

inline constexpr auto kOutdated = "This line was changed or removed after the search.";
inline constexpr auto kSearching = "Searching for \"%1\": %2 lines found so far",
                      kFound = "\"%1\": %2 lines in %3 modules",
                      kStopped = "\"%1\": stopped after %2 lines in %3 modules",
                      kTooMany = "\"%1\": only the first %2 lines are listed";
inline constexpr auto kReading = "Reading the project to find all references to \"%1\"",
                      kReferences = "References to \"%1\": %2 lines in %3 modules",
                      kReferencesStopped = "References to \"%1\": stopped",
                      kNotKnown = "What \"%1\" means here is not known", kDeclaration = "The declaration";

} // namespace workbench::search_texts
