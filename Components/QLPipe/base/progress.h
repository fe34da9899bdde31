#pragma once
// Reports the progress of a transfer to an event sink.
#include "Add-in/platform/pipes.h"
#include <cstdint>
#include <string>

namespace qlpipe {

/// Calls SendProgress only if the text or the percentage changes, because the sink processes the host's events each
/// time.
class Progress {
public:
    /// `sink` may be null. `total` is in bytes.
    Progress(IQLPipeEvents* sink, std::int64_t total) : sink_(sink), total_(total) {}

    void setStatus(std::string status);
    void moved(std::int64_t bytes);

private:
    void report();

    IQLPipeEvents* sink_;
    std::int64_t total_;
    std::int64_t done_ = 0;
    std::int32_t percent_ = 0;
    std::string status_;
};

} // namespace qlpipe
