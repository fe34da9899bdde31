#pragma once
#include "Components/QLPipe/linux_handheld/file_descriptor.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include <chrono>

namespace qlpipe {

/// How long a handheld may keep one waiting.
struct SshTimeouts {
    /// For the address and the first words, and for each step up to the open file transfer.
    std::chrono::milliseconds connect{15'000};
    /// Between two signs of life.
    std::chrono::milliseconds operation{30'000};
    /// For a file to reach the disk, which slow memory cards take long for.
    std::chrono::milliseconds flush{120'000};
};

/// A connection to the first of the host's addresses that takes it. Throws TransferError.
[[nodiscard]] FileDescriptor connectTo(const SshTarget& target, std::chrono::milliseconds timeout);

/// In words for users: "15", "0.5".
[[nodiscard]] std::string secondsText(std::chrono::milliseconds time);

} // namespace qlpipe
