#pragma once
#include "Components/QLPipe/linux_handheld/ssh_session.h"
#include <string_view>

namespace qlpipe {

/// The bytes of the file transfer. Every wait for the device has an end; what goes wrong is a TransferError, and then
/// the channel is of no more use.
class SshChannel {
public:
    /// Connects, checks the device's key, lets the user in and opens the file transfer.
    SshChannel(const SshTarget& target, const SshTimeouts& timeouts);

    void send(std::string_view bytes);
    /// Fills `bytes`, however long the rest takes as long as something comes within `patience`.
    void receive(char* bytes, std::size_t size, std::chrono::milliseconds patience);

    const SshTarget& target() const { return session_.target(); }
    const SshTimeouts& timeouts() const { return session_.timeouts(); }
    /// Whether it can still be used.
    bool isOpen() const { return isOpen_; }
    /// For whoever can make no sense of what comes.
    void giveUp() { isOpen_ = false; }

private:
    void waitFor(std::chrono::milliseconds patience, SshSession::Clock::time_point since);
    [[noreturn]] void throwLost(const std::string& why);

    SshSession session_;
    OwnedChannel channel_;
    bool isOpen_ = true;
};

} // namespace qlpipe
