#pragma once
// A proxy that cuts or blocks connections.
#include "tests/pipes_ssh/ssh_server.h"
#include <atomic>
#include <limits>
#include <netinet/tcp.h>
#include <poll.h>
#include <thread>

namespace test {

/// Forwards one connection after the other to a local port, and cuts each after a number of bytes sent to the server.
class CuttingProxy {
public:
    explicit CuttingProxy(std::uint16_t to) : to_(to), listener_(listenOnLoopback()), thread_([this] { run(); }) {}
    ~CuttingProxy() {
        stopping_ = true;
        thread_.join();
        ::close(listener_);
    }

    std::uint16_t port() const { return portOfSocket(listener_); }
    static constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();
    /// Applies to later connections.
    void cutAfter(std::size_t bytes) { cutAfter_ = bytes; }
    /// Stops forwarding without closing the connection.
    void freeze(bool frozen) { frozen_ = frozen; }
    /// Number of bytes that the last connection sent to the server.
    std::size_t sent() const { return sent_; }

private:
    void run() {
        while (!stopping_) {
            pollfd event{listener_, POLLIN, 0};
            if (::poll(&event, 1, 10) != 1) continue;
            const int client = ::accept(listener_, nullptr, nullptr);
            const int server = connectToLoopback(to_);
            const int on = 1;
            for (const int socket : {client, server}) ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
            if (client >= 0 && server >= 0) relay(client, server);
            ::close(client);
            ::close(server);
        }
    }

    void relay(int client, int server) {
        sent_ = 0;
        while (!stopping_) {
            pollfd events[]{{client, POLLIN, 0}, {server, POLLIN, 0}};
            if (frozen_ || ::poll(events, 2, 10) <= 0) {
                if (frozen_) std::this_thread::sleep_for(std::chrono::milliseconds(5));
                continue;
            }
            const std::size_t left = cutAfter_ - sent_;
            if (events[0].revents != 0) {
                const auto bytes = pass(client, server, left);
                if (bytes <= 0) return;
                sent_ += std::size_t(bytes);
            }
            if (sent_ >= cutAfter_) return;
            if (events[1].revents != 0 && pass(server, client, kNever) <= 0) return;
        }
    }

    static ssize_t pass(int from, int to, std::size_t most) {
        char bytes[16384];
        const auto got = ::recv(from, bytes, std::min(most, sizeof bytes), 0);
        return got > 0 && ::send(to, bytes, std::size_t(got), MSG_NOSIGNAL) != got ? -1 : got;
    }

    std::uint16_t to_;
    int listener_;
    std::atomic<bool> stopping_ = false, frozen_ = false;
    std::atomic<std::size_t> cutAfter_ = kNever, sent_ = 0;
    std::thread thread_;
};

} // namespace test
