#pragma once
// The project file of a copy, rewritten for another device.
#include "Add-in/platform/design_targets.h"
#include "Add-in/platform/files.h"

namespace fernwick {

/// Rewrites a project file for a device. Only "TargetDevice", "CompileTarget..." and "TavletStyleID" of the global section
/// change. Errors go to the caller.
void fixConvertedVBP(FileSystemObject& files, const std::string& projectFile,
                     const designtargetaccess::IQLDesignTarget& target);

/// The value of a key in the global section of a project file; "" if it is missing.
std::string storedInProjectFile(FileSystemObject& files, const std::string& projectFile, std::string_view key);

} // namespace fernwick
