#pragma once
// The values that an installation brings along: the .reg files of its registry folder.
#include "Host/registry/registry_database.h"
#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// The layer below a machine store, in memory.
struct InstalledValues {
    RegistryDatabase machine;
    /// What was wrong with files or instructions, "file:line: reason"; the rest counts all the same.
    std::vector<std::string> problems;
};

/// Reads `root`/registry/*.reg in the order of their names. "%RootDir%" in a text stands for `root`. Only keys of
/// HKEY_LOCAL_MACHINE and HKEY_CLASSES_ROOT can be installed. A missing folder installs nothing.
InstalledValues readInstalledValues(const std::filesystem::path& root);

} // namespace host
