#include "Add-in/lifecycle/project_backup.h"

namespace fernwick {

std::string backUp(FileSystemObject& files, const std::string& path) {
    const auto first = path + ".bak";
    auto backup = first;
    for (int i = 1; files.FileExists(backup) || files.FolderExists(backup); ++i) backup = first + std::to_string(i);
    files.CopyFile(path, backup, false);
    return backup;
}

} // namespace fernwick
