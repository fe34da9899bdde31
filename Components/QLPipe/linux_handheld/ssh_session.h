#pragma once
// One SSH connection, from the first byte to the open channel of the file transfer.
#include "Components/QLPipe/linux_handheld/libssh_library.h"
#include "Components/QLPipe/linux_handheld/tcp_connection.h"
#include <string_view>

namespace qlpipe {

/// A connection on which both sides agreed on keys. Nobody has looked at the device's yet.
///
/// libssh never blocks here: it does what can be done at once, and the waiting is ours, with an end.
class SshSession {
public:
    SshSession(const SshTarget& target, const SshTimeouts& timeouts);

    const SshTarget& target() const { return target_; }
    const SshTimeouts& timeouts() const { return timeouts_; }
    ssh_session get() const { return session_.get(); }
    /// What libssh says of its last failure.
    std::string problem() const;

    bool isConnected() const { return libssh().ssh_get_fd(get()) >= 0; }

    /// Repeats a step of libssh for as long as it answers `again`. SSH_ERROR when the connection is gone; throws
    /// after the connect timeout.
    template <class Step>
    int finish(int again, Step step) const {
        const auto deadline = Clock::now() + timeouts_.connect;
        for (;;) {
            const int result = step();
            if (result != again) return result;
            // libssh goes on hoping after the other side has hung up
            if (!isConnected()) return SSH_ERROR;
            if (!wait(deadline)) throwNoAnswer();
        }
    }

    using Clock = std::chrono::steady_clock;
    /// Until something may have moved on the connection. False at the deadline.
    [[nodiscard]] bool wait(Clock::time_point deadline) const;

private:
    void setOptions(int socket) const;
    [[noreturn]] void throwNoAnswer() const;

    SshTarget target_;
    SshTimeouts timeouts_;
    OwnedSession session_;
};

/// Throws TransferError unless the device's key is among the known ones.
void checkHostKey(const SshSession& session);

/// Lets the user in by the key file, the agent or the usual keys; throws TransferError. No password is ever asked for.
void authenticate(const SshSession& session);

} // namespace qlpipe
