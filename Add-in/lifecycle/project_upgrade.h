#pragma once
// Brings a project file of the old format over to the present one.
#include "Add-in/devices/clsDeviceConfig.h"
#include "Add-in/platform/files.h"

namespace fernwick {

enum class UpgradeResult {
    Upgraded,
    Current, ///< the project has the present format
    Foreign  ///< not a Fernwick project
};

struct Upgrade {
    UpgradeResult result = UpgradeResult::Foreign;
    /// The copy of the old file.
    std::string backup;
    /// Lines of the product's sections that this version does not know. They are kept.
    std::vector<std::string> unknownLines;
};

/// Whether a file is a Fernwick project that upgradeProject would change. Errors go to the caller.
bool hasOldFormat(FileSystemObject& files, const std::string& projectFile);

/// Adds the version of the format and the values of the project's device that it lacks. All other lines stay. The file
/// must not be open in the host; it is backed up first, and replaced as a whole. Errors go to the caller.
Upgrade upgradeProject(FileSystemObject& files, const DeviceServices& devices, const std::string& projectFile);

} // namespace fernwick
