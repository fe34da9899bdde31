#pragma once
// Where the device of a design target is, and what is on it.
#include "Apps/fernwick/run/machine.h"
#include "Components/QLPipe/pipe_family.h"
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
    /// That message's number; 0 for none.
    std::int32_t problemNumber = 0;
};

/// The family that a design target's pipe serves; null for a pipe that is none of the shipped ones.
const qlpipe::PipeFamily* pipeFamilyOf(const std::string& pipe);

/// Asks the device itself, which may be a network away. `pipe` is the ProgID that its design target names.
DevicePlace placeOfDevice(Machine& machine, const std::string& key, const std::string& pipe);

} // namespace cli
