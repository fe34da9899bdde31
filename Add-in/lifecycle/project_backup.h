#pragma once
#include "Add-in/platform/files.h"

namespace fernwick {

/// Returns a file's name with ".bak", or the first of ".bak1", ".bak2"... that is free.
std::string freeBackupPath(const FileSystemObject& files, const std::string& path);

/// Copies a file to freeBackupPath and returns that path.
/// Errors go to the caller.
std::string backUp(FileSystemObject& files, const std::string& path);

} // namespace fernwick
