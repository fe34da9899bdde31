#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// Returns the name that was most likely meant: one that differs by typing mistakes, or begins with what was typed.
/// Letter case is ignored. "" if none is similar enough.
std::string nearestName(std::string_view typed, const std::vector<std::string>& names);

/// Returns "; did you mean NAME?", or "" if no name is similar enough.
std::string didYouMean(std::string_view typed, const std::vector<std::string>& names);

/// Joins words as in "text, json or sarif".
std::string listedWords(const std::vector<std::string>& words, std::string_view conjunction = "or");

} // namespace cli
