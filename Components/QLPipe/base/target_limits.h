#pragma once
// Limits of the devices of a design target.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/host.h"
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qlpipe {

/// A limit without a value does not exist.
struct TargetLimits {
    /// Name of the platform, or of the device if its target is not installed.
    std::string platform;
    std::optional<std::int64_t> imageBytes; ///< size of a compiled application
    std::optional<std::int64_t> fileBytes;  ///< size of any other file
    std::optional<std::int64_t> heapBytes;  ///< memory of a program
    std::optional<std::int64_t> storageBytes;
    std::optional<std::int64_t> nameLength; ///< characters of a name, including folders
    std::vector<std::string> fileKinds;     ///< extensions in upper case; if empty, all
};

/// Returns the limits of the design target with this key. An unknown target has no limits.
TargetLimits limitsOf(fernwick::Classes& classes, const std::string& device);

/// Returns true if a device with this name belongs to the family.
bool isOfFamily(const std::string& device, const std::string& family);

/// Returns the project's device if it belongs to the family, otherwise the family's first design target, or "".
std::string deviceToCheckFor(fernwick::Classes& classes, const basic::Ref<vbide::VBProject>& project,
                             const std::string& family);

} // namespace qlpipe
