#pragma once
// File names relative to a folder.
#include "Add-in/platform/files.h"

namespace fernwick {

/// Returns the path relative to a folder: the rest if the path begins with the folder (ignoring letter case), otherwise
/// the way over "..\", otherwise the path itself. `base` ends in a separator. The result has "\" as separators, as
/// stored in projects.
std::string GetRelativePath(const FileSystemObject& files, const std::string& base, const std::string& path);

/// Returns the part of a path after a folder (ignoring letter case), with "\" as separators; "" for a path outside the
/// folder.
std::string PathBelow(const FileSystemObject& files, const std::string& folder, const std::string& path);

} // namespace fernwick
