#include "Components/QLPipe/linux_handheld/tcp_connection.h"
#include "Components/QLPipe/base/ssh_messages.h"
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <system_error>

namespace qlpipe {

namespace {

using Clock = std::chrono::steady_clock;
using Addresses = std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)>;

Addresses addressesOf(const SshTarget& target) {
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    wanted.ai_flags = AI_NUMERICSERV;
    addrinfo* found = nullptr;
    const int problem = ::getaddrinfo(target.host.c_str(), std::to_string(target.port).c_str(), &wanted, &found);
    if (problem != 0)
        throw sshError(SshMessage::HostNotFound, {{"handheld", target.host}, {"reason", ::gai_strerror(problem)}});
    return {found, &::freeaddrinfo};
}

/// Returns 0 or an errno, ETIMEDOUT at the deadline.
int waitForConnection(int socket, Clock::time_point deadline, const SshTimeouts& timeouts) {
    if (!waitForSocket(socket, POLLOUT, deadline, timeouts)) return ETIMEDOUT;
    int problem = 0;
    socklen_t length = sizeof problem;
    return ::getsockopt(socket, SOL_SOCKET, SO_ERROR, &problem, &length) == 0 ? problem : errno;
}

int connectSocket(int socket, const addrinfo& address, Clock::time_point deadline, const SshTimeouts& timeouts) {
    // Sends small requests immediately instead of waiting for the previous reply.
    const int on = 1;
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    if (::connect(socket, address.ai_addr, address.ai_addrlen) == 0) return 0;
    return errno == EINPROGRESS ? waitForConnection(socket, deadline, timeouts) : errno;
}

/// Returns the deadline of an attempt that leaves the same time to each of the remaining ones.
Clock::time_point shareOf(Clock::time_point deadline, int attempts) {
    return Clock::now() + (deadline - Clock::now()) / attempts;
}

} // namespace

bool waitForSocket(int socket, short events, Clock::time_point deadline, const SshTimeouts& timeouts) {
    constexpr std::int64_t kTurn = 50; // milliseconds
    for (;;) {
        if (timeouts.isCancelled && *timeouts.isCancelled) throw ConnectionCancelled();
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0) return false;
        pollfd event{socket, events, 0};
        const int ready = ::poll(&event, 1, int(timeouts.isCancelled ? std::min(left, kTurn) : left));
        if (ready > 0 || (ready < 0 && errno != EINTR)) return true;
    }
}

std::string secondsText(std::chrono::milliseconds time) {
    const auto tenths = time.count() / 100;
    const auto whole = std::to_string(tenths / 10);
    return tenths % 10 == 0 ? whole : whole + "." + std::to_string(tenths % 10);
}

FileDescriptor connectTo(const SshTarget& target, const SshTimeouts& timeouts) {
    const auto deadline = Clock::now() + timeouts.connect;
    const auto addresses = addressesOf(target);
    int problem = 0, left = 0;
    for (const auto* address = addresses.get(); address; address = address->ai_next) ++left;
    for (const auto* address = addresses.get(); address; address = address->ai_next) {
        FileDescriptor socket{
            ::socket(address->ai_family, address->ai_socktype | SOCK_CLOEXEC | SOCK_NONBLOCK, address->ai_protocol)};
        problem = socket.get() < 0 ? errno : connectSocket(socket.get(), *address, shareOf(deadline, left--), timeouts);
        if (problem == 0) return socket;
    }
    if (problem == ETIMEDOUT)
        throw sshError(SshMessage::NoAnswer,
                       {{"handheld", target.address()}, {"seconds", secondsText(timeouts.connect)}});
    throw sshError(SshMessage::NotConnected,
                   {{"handheld", target.address()}, {"reason", std::generic_category().message(problem)}});
}

} // namespace qlpipe
