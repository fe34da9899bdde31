#pragma once
// The registry values of an installation, from the .reg files of its registry folder.
#include "Host/registry/registry_tree.h"
#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// The layer below a machine store, in memory.
struct InstalledValues {
    RegistryTree machine;
    /// Problems with files or instructions, "file:line: reason". They do not affect other instructions.
    std::vector<std::string> problems;
};

/// Reads `root`/registry/*.reg sorted by name. Replaces "%RootDir%" in texts with `root`. Only keys of
/// HKEY_LOCAL_MACHINE and HKEY_CLASSES_ROOT can be installed. A missing folder installs nothing.
InstalledValues readInstalledValues(const std::filesystem::path& root);

} // namespace host
