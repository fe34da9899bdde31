#pragma once
#include "Add-in/platform/files.h"
#include <functional>

namespace fernwick {

/// Replaces a project file: `write` writes its new text, which is on disk as a file of its own (".converting") before it
/// takes the place of the old one and does not remain if anything fails. Errors go to the caller.
void rewriteProjectFile(FileSystemObject& files, const std::string& path,
                        const std::function<void(TextStream& to)>& write);

} // namespace fernwick
