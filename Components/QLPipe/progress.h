#pragma once
// How far a transfer has come, as an event sink is told.
#include "Add-in/platform/pipes.h"
#include <cstdint>
#include <string>

namespace qlpipe {

/// Raises SendProgress when the words or the percent change, and not for each chunk: the sink serves the host's events each
/// time.
class Progress {
public:
    /// `sink` may be null. `total` is in bytes.
    Progress(IQLPipeEvents* sink, std::int64_t total) : sink_(sink), total_(total) {}

    void says(std::string status);
    void moved(std::int64_t bytes);

private:
    void tell();

    IQLPipeEvents* sink_;
    std::int64_t total_;
    std::int64_t done_ = 0;
    std::int32_t percent_ = 0;
    std::string status_;
};

} // namespace qlpipe
