#pragma once
#include "Components/QLPipe/base/file_descriptor.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include <chrono>

namespace qlpipe {

/// Timeouts of a connection.
struct SshTimeouts {
    /// For connecting, and for each step until the file transfer is open.
    std::chrono::milliseconds connect{15'000};
    /// Without any activity.
    std::chrono::milliseconds operation{30'000};
    /// For flushing a file to disk, which is slow on memory cards.
    std::chrono::milliseconds flush{120'000};
};

/// Connects to the first of the host's addresses that accepts. Throws TransferError.
[[nodiscard]] FileDescriptor connectTo(const SshTarget& target, std::chrono::milliseconds timeout);

/// Returns the seconds for users: "15", "0.5".
[[nodiscard]] std::string secondsText(std::chrono::milliseconds time);

} // namespace qlpipe
