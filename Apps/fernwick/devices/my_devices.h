#pragma once
// The user's devices at the command line.
#include "Apps/fernwick/run/machine.h"
#include <string>
#include <vector>

namespace cli {

/// A device of My Devices, or one that could be.
struct DeviceRow {
    std::string key;
    /// Without its accelerator; "" for a key that is not installed any more.
    std::string name;
    std::string pipe;
    bool isMine = false;
    /// Whether its design target is usable here.
    bool isUsable = false;
};

/// The usable design targets in the installation's order, then what My Devices names besides.
std::vector<DeviceRow> deviceRows(Machine& machine, const std::vector<std::string>& mine);

/// Letter case ignored; null for an unknown key.
const DeviceRow* deviceWithKey(const std::vector<DeviceRow>& rows, const std::string& key);

/// Bytes in words: "12.3 MB"; "" for a device that doesn't tell.
std::string sizeWords(std::int64_t bytes);

} // namespace cli
