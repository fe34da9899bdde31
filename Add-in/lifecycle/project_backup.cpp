#include "Add-in/lifecycle/project_backup.h"

namespace fernwick {

std::string freeBackupPath(const FileSystemObject& files, const std::string& path) {
    const auto first = path + ".bak";
    auto backup = first;
    for (int i = 1; files.FileExists(backup) || files.FolderExists(backup); ++i) backup = first + std::to_string(i);
    return backup;
}

std::string backUp(FileSystemObject& files, const std::string& path) {
    const auto backup = freeBackupPath(files, path);
    files.CopyFile(path, backup, false);
    return backup;
}

} // namespace fernwick
