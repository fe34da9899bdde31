#pragma once
// Names of files relative to a folder.
#include "Add-in/platform/files.h"

namespace fernwick {

/// The path as seen from a folder: what stands behind the folder where the path begins with it (letter case
/// ignored), else the way over "..\", else the path as it is. `base` ends in a separator. The answer has "\"
/// for its separators, as it is stored in projects.
std::string GetRelativePath(const FileSystemObject& files, const std::string& base, const std::string& path);

/// What stands behind a folder in a path below it (letter case ignored), with "\" for its separators; "" for any
/// other path.
std::string PathBelow(const FileSystemObject& files, const std::string& folder, const std::string& path);

} // namespace fernwick
