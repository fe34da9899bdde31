#pragma once
#include <string>

namespace apps {

/// Returns the folder of this program; "" if it is unknown.
std::string programFolder();

/// Returns the root of the installation that belongs to the program in this folder: `share/fernwick` beside its `bin`,
/// or `installation` in a folder above it (a build). "" if there is none.
std::string installationBeside(const std::string& programFolder);

} // namespace apps
