#pragma once
#include "Components/QLPipe/linux_handheld/ssh_session.h"
#include <string_view>

namespace qlpipe {

/// The byte stream of a file transfer. Every wait has a timeout. After a TransferError the channel cannot be used any
/// more.
class SshChannel {
public:
    /// Connects, verifies the device's key, authenticates the user and opens the file transfer.
    SshChannel(const SshTarget& target, const SshTimeouts& timeouts);

    void send(std::string_view bytes);
    /// Fills `bytes`. Fails only if nothing arrives for `patience`.
    void receive(char* bytes, std::size_t size, std::chrono::milliseconds patience);

    const SshTarget& target() const { return session_.target(); }
    const SshTimeouts& timeouts() const { return session_.timeouts(); }
    /// Returns whether the channel can still be used.
    bool isOpen() const { return isOpen_; }
    /// Closes the channel after an invalid reply.
    void giveUp() { isOpen_ = false; }

private:
    void waitFor(std::chrono::milliseconds patience, SshSession::Clock::time_point since);
    [[noreturn]] void throwLost(const std::string& why);

    SshSession session_;
    OwnedChannel channel_;
    bool isOpen_ = true;
};

} // namespace qlpipe
