#pragma once
#include "Components/QLPipe/base/file_descriptor.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include <atomic>
#include <chrono>
#include <string>

namespace qlpipe {

/// Timeouts of a connection.
struct SshTimeouts {
    /// For connecting, and for each step until the file transfer is open.
    std::chrono::milliseconds connect{15'000};
    /// Without any activity.
    std::chrono::milliseconds operation{30'000};
    /// For flushing a file to disk, which is slow on memory cards.
    std::chrono::milliseconds flush{120'000};
    /// Every wait ends with ConnectionCancelled soon after this is set; null if nothing cancels the connection.
    const std::atomic<bool>* isCancelled = nullptr;
};

struct ConnectionCancelled {};

/// Polls a socket until the deadline. Returns whether there was an event or an error, whose errno is kept.
[[nodiscard]] bool waitForSocket(int socket, short events, std::chrono::steady_clock::time_point deadline,
                                 const SshTimeouts& timeouts);

/// Connects to the first of the host's addresses that accepts. Throws TransferError and
/// ConnectionCancelled.
[[nodiscard]] FileDescriptor connectTo(const SshTarget& target, const SshTimeouts& timeouts);

/// Returns the seconds for users: "15", "0.5".
[[nodiscard]] std::string secondsText(std::chrono::milliseconds time);

} // namespace qlpipe
