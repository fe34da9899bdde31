#pragma once
#include <string>

namespace apps {

/// The folder of this program, "" where the system doesn't tell.
std::string programFolder();

/// The root of the installation tree that belongs to this program: the folder `installation` in one of the folders
/// above it (a build folder), or `share/fernwick` beside its `bin`. "" when there is none.
std::string installationBeside(const std::string& programFolder);

} // namespace apps
