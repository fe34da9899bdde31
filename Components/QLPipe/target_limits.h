#pragma once
// What devices of a design target can take.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/host.h"
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qlpipe {

/// Without a value there is no limit.
struct TargetLimits {
    /// The platform in words; the device's name where its target is not installed.
    std::string platform;
    std::optional<std::int64_t> imageBytes; ///< of a compiled application
    std::optional<std::int64_t> fileBytes;  ///< of any other file
    std::optional<std::int64_t> heapBytes;  ///< what a program can hold in memory
    std::optional<std::int64_t> storageBytes;
    std::optional<std::int64_t> nameLength; ///< characters of a name, its folders included
    std::vector<std::string> fileKinds;     ///< extensions in upper case; all kinds when empty
};

/// From the options of the design target with this key; without any limit where there is none.
TargetLimits limitsOf(fernwick::Classes& classes, const std::string& device);

/// Whether a device with this name belongs to the family.
bool isOfFamily(const std::string& device, const std::string& family);

/// The project's own device when it belongs to the family, else the family's first design target; "" for none.
std::string deviceToCheckFor(fernwick::Classes& classes, const basic::Ref<vbide::VBProject>& project,
                             const std::string& family);

} // namespace qlpipe
