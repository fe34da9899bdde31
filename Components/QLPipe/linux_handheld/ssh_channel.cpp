#include "Components/QLPipe/linux_handheld/ssh_channel.h"
#include "Components/QLPipe/base/ssh_messages.h"
#include <new>

namespace qlpipe {

SshChannel::SshChannel(const SshTarget& target, const SshTimeouts& timeouts) : session_(target, timeouts) {
    checkHostKey(session_);
    authenticate(session_);
    channel_.reset(libssh().ssh_channel_new(session_.get()));
    if (!channel_) throw std::bad_alloc();
    const auto demand = [this](int result) {
        if (result != SSH_OK)
            throw sshError(SshMessage::TransferNotOffered,
                           {{"handheld", session_.target().address()}, {"reason", session_.problem()}});
    };
    demand(session_.finish(SSH_AGAIN, [this] { return libssh().ssh_channel_open_session(channel_.get()); }));
    demand(session_.finish(SSH_AGAIN, [this] { return libssh().ssh_channel_request_sftp(channel_.get()); }));
}

void SshChannel::send(std::string_view bytes) {
    if (!isOpen_) throwLost("it was closed earlier");
    auto since = SshSession::Clock::now();
    while (!bytes.empty()) {
        const int taken = libssh().ssh_channel_write(channel_.get(), bytes.data(), std::uint32_t(bytes.size()));
        if (taken < 0) throwLost(session_.problem());
        bytes.remove_prefix(std::size_t(taken));
        if (taken > 0)
            since = SshSession::Clock::now();
        else
            waitFor(timeouts().operation, since);
    }
}

void SshChannel::receive(char* bytes, std::size_t size, std::chrono::milliseconds patience) {
    auto since = SshSession::Clock::now();
    while (size > 0) {
        const int got = libssh().ssh_channel_read_timeout(channel_.get(), bytes, std::uint32_t(size), 0, 0);
        if (got < 0) throwLost(session_.problem());
        if (got == 0 && libssh().ssh_channel_is_eof(channel_.get())) throwLost("the handheld closed the file transfer");
        bytes += got;
        size -= std::size_t(got);
        if (got > 0)
            since = SshSession::Clock::now();
        else
            waitFor(patience, since);
    }
}

void SshChannel::waitFor(std::chrono::milliseconds patience, SshSession::Clock::time_point since) {
    if (!session_.isConnected()) throwLost(session_.problem());
    if (session_.wait(since + patience)) return;
    giveUp();
    throw sshError(SshMessage::Stalled, {{"handheld", target().address()}, {"seconds", secondsText(patience)}});
}

void SshChannel::throwLost(const std::string& why) {
    giveUp();
    throw sshError(SshMessage::ConnectionLost, {{"handheld", target().address()}, {"reason", why}});
}

} // namespace qlpipe
