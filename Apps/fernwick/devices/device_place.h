#pragma once
// The location of a design target's device, and its contents.
#include "Apps/fernwick/run/machine.h"
#include "Components/QLPipe/pipe_family.h"
#include <cstdint>
#include <string>

namespace cli {

struct DevicePlace {
    /// A folder, or "user@host:folder"; "" if the device cannot be reached.
    std::string location;
    /// Version of the installed runtime; "" for none.
    std::string runtime;
    /// -1 if unknown.
    std::int64_t freeBytes = -1;
    /// Why the device cannot be reached, and what to do; "" if it can.
    std::string problem;
    /// The number of that message; 0 for none.
    std::int32_t problemNumber = 0;
};

/// Returns the device family of a pipe; null for a pipe that is not part of Fernwick.
const qlpipe::PipeFamily* pipeFamilyOf(const std::string& pipe);

/// Queries the device, possibly over the network. `pipe` is the ProgID in its design target.
DevicePlace placeOfDevice(Machine& machine, const std::string& key, const std::string& pipe);

} // namespace cli
