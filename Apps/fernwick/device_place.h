#pragma once
// Where the device of a design target is, and what is on it.
#include "Apps/fernwick/machine.h"
#include <cstdint>
#include <string>

namespace cli {

struct DevicePlace {
    /// A folder, or "user@host:folder"; "" for a device that can't be reached.
    std::string location;
    /// Version of the runtime that is installed there; "" for none.
    std::string runtime;
    /// Bytes; -1 where the device doesn't tell.
    std::int64_t freeBytes = -1;
    /// Why it can't be reached, and what to do; "" for one that can.
    std::string problem;
};

/// Asks the device itself, which may be a network away. `pipe` is the ProgID that its design target names.
DevicePlace placeOfDevice(Machine& machine, const std::string& key, const std::string& pipe);

} // namespace cli
