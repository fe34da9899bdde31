#pragma once
// One SSH connection.
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/linux_handheld/libssh_library.h"
#include "Components/QLPipe/linux_handheld/tcp_connection.h"
#include <string_view>

namespace qlpipe {

/// A connection after the key exchange. The device's key has not been verified yet.
///
/// libssh is used in non-blocking mode; all waiting is done here, with timeouts.
class SshSession {
public:
    SshSession(const SshTarget& target, const SshTimeouts& timeouts);

    const SshTarget& target() const { return target_; }
    const SshTimeouts& timeouts() const { return timeouts_; }
    ssh_session get() const { return session_.get(); }
    /// Returns the text of the last error of libssh.
    std::string problem() const;

    bool isConnected() const { return libssh().ssh_get_fd(get()) >= 0; }

    /// Repeats a step of libssh while it returns `again`. Returns SSH_ERROR if the connection is lost. Throws after the
    /// connect timeout.
    template <class Step>
    int finish(int again, Step step) const {
        const auto deadline = Clock::now() + timeouts_.connect;
        for (;;) {
            const int result = step();
            if (result != again) return result;
            // libssh does not notice that the other side has disconnected.
            if (!isConnected()) return SSH_ERROR;
            if (!wait(deadline)) throwNoAnswer();
        }
    }

    using Clock = std::chrono::steady_clock;
    /// Waits for activity on the connection. Returns false at the deadline.
    [[nodiscard]] bool wait(Clock::time_point deadline) const;

private:
    void setOptions(int socket) const;
    [[noreturn]] void throwNoAnswer() const;

    SshTarget target_;
    SshTimeouts timeouts_;
    OwnedSession session_;
};

/// The error of a device that is not known yet, with its key.
struct UnknownHostKey : TransferError {
    /// "ED25519".
    std::string kind;
    /// The name in the key's file name: "ed25519".
    std::string fileKind;
    /// "SHA256:" and the hash.
    std::string fingerprint;
    /// The line for the known hosts file.
    std::string line;
};

/// Throws TransferError unless the device's key is known, UnknownHostKey if none is known for its address.
void checkHostKey(const SshSession& session);

/// Authenticates the user with the key file, the agent or the default keys. Never asks for a password. Throws
/// TransferError.
void authenticate(const SshSession& session);

} // namespace qlpipe
