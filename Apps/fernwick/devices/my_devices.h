#pragma once
// The user's devices, and those that can be added.
#include "Apps/fernwick/run/machine.h"
#include <string>
#include <vector>

namespace cli {

struct DeviceRow {
    std::string key;
    /// Without its accelerator; "" if the design target is no longer installed.
    std::string name;
    std::string pipe;
    bool isMine = false;
    /// Whether its design target is usable.
    bool isUsable = false;
};

/// Returns the usable design targets in the order of the installation, then the other entries of My Devices.
std::vector<DeviceRow> deviceRows(Machine& machine, const std::vector<std::string>& mine);

/// Ignores letter case. Null for an unknown key.
const DeviceRow* deviceWithKey(const std::vector<DeviceRow>& rows, const std::string& key);

/// Formats bytes ("12.3 MB"); "" if negative.
std::string sizeWords(std::int64_t bytes);

} // namespace cli
