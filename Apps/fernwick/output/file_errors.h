#pragma once
#include <string>

namespace cli {

/// Returns the exit status for the error that opening a project failed with.
int statusOfOpening(int number);
/// The same for a file that the command line names: a folder in its place is a mistake of the user.
int statusOfNamedFile(const std::string& path, int number);
/// Prefixes the description of an error with the file, unless it already begins with it.
std::string withFile(const std::string& path, const std::string& description);

} // namespace cli
