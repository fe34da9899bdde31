#pragma once
#include "Add-in/platform/files.h"

namespace fernwick {

/// Copies a file to its name with ".bak", or the first of ".bak1", ".bak2"... that is free, and returns that path.
/// Errors go to the caller.
std::string backUp(FileSystemObject& files, const std::string& path);

} // namespace fernwick
