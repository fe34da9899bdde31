#include "Components/QLPipe/linux_handheld/ssh_session.h"
#include "Components/QLPipe/base/ssh_messages.h"
#include <cerrno>
#include <fcntl.h>
#include <new>
#include <poll.h>

namespace qlpipe {

namespace {

/// libssh expands "%" and "~" in paths.
std::string unexpanded(const std::string& path) {
    std::string text;
    for (const char c : path) text += c == '%' ? "%%" : std::string(1, c);
    return text;
}

} // namespace

SshSession::SshSession(const SshTarget& target, const SshTimeouts& timeouts)
    : target_(target), timeouts_(timeouts), session_(libssh().ssh_new()) {
    if (!session_) throw std::bad_alloc();
    auto socket = connectTo(target, timeouts);
    setOptions(socket.get());
    libssh().ssh_set_blocking(get(), 0);
    // From its first step on, libssh owns the socket.
    socket.release();
    if (finish(SSH_AGAIN, [this] { return libssh().ssh_connect(get()); }) != SSH_OK)
        throw sshError(SshMessage::HandshakeFailed, {{"handheld", target_.address()}, {"reason", problem()}});
    // libssh has made the socket blocking; a write could block if the device stops reading.
    const int fd = libssh().ssh_get_fd(get());
    ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) | O_NONBLOCK);
}

void SshSession::setOptions(int socket) const {
    const auto set = [this](ssh_options_e option, const void* value) {
        if (libssh().ssh_options_set(get(), option, value) != SSH_OK)
            throw sshError(
                SshMessage::SettingInvalid,
                {{"setting", "Host"}, {"value", target_.host}, {"reason", "it is neither a name nor an address"}});
    };
    const bool no = false;
    const unsigned port = target_.port;
    const bool isIpv6 = target_.host.find(':') != std::string::npos;
    // ~/.ssh/config is ignored: the settings are complete.
    set(SSH_OPTIONS_PROCESS_CONFIG, &no);
    set(SSH_OPTIONS_HOST, (isIpv6 ? "[" + target_.host + "]" : target_.host).c_str());
    set(SSH_OPTIONS_PORT, &port);
    set(SSH_OPTIONS_USER, target_.user.c_str());
    set(SSH_OPTIONS_FD, &socket);
    set(SSH_OPTIONS_KNOWNHOSTS, unexpanded(target_.knownHosts).c_str());
    if (!target_.usualKnownHosts) set(SSH_OPTIONS_GLOBAL_KNOWNHOSTS, "/dev/null");
}

std::string SshSession::problem() const { return saidByDevice(libssh().ssh_get_error(get())); }

bool SshSession::wait(Clock::time_point deadline) const {
    if (Clock::now() >= deadline) return false;
    if (!isConnected()) return true; // the next step reports it
    const bool isWriting = (libssh().ssh_get_poll_flags(get()) & SSH_WRITE_PENDING) != 0;
    return waitForSocket(libssh().ssh_get_fd(get()), short(POLLIN | (isWriting ? POLLOUT : 0)), deadline, timeouts_);
}

void SshSession::throwNoAnswer() const {
    throw sshError(SshMessage::NoAnswer,
                   {{"handheld", target_.address()}, {"seconds", secondsText(timeouts_.connect)}});
}

} // namespace qlpipe
