#pragma once
#include <string>

namespace cli {

/// Returns the exit status for the error that opening a project failed with.
int statusOfOpening(int number);
/// Prefixes the description of an error with the file, unless it already begins with it.
std::string withFile(const std::string& path, const std::string& description);

} // namespace cli
