#pragma once
// An OpenSSH server on 127.0.0.1 with keys and folders in a temporary folder.
#include "Components/QLPipe/linux_handheld/user_account.h"
#include "tests/pipes_ssh/ssh_programs.h"
#include "tests/support/temp_folder.h"
#include <arpa/inet.h>
#include <chrono>
#include <fstream>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <thread>

namespace test {

/// Returns a listening TCP socket on 127.0.0.1. Port 0 lets the system choose.
inline int listenOnLoopback(std::uint16_t port = 0) {
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 || ::listen(listener, 16) != 0)
        throw std::runtime_error("can't listen");
    return listener;
}

inline std::uint16_t portOfSocket(int socket) {
    sockaddr_in address{};
    socklen_t length = sizeof address;
    ::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &length);
    return ntohs(address.sin_port);
}

/// Returns an unused port.
inline std::uint16_t freePort() {
    const int listener = listenOnLoopback();
    const auto port = portOfSocket(listener);
    ::close(listener);
    return port;
}

/// Accepts a connection and returns its socket, or -1.
inline int connectToLoopback(std::uint16_t port) {
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) return socket;
    ::close(socket);
    return -1;
}

class SshServer {
public:
    /// `more` are further lines of sshd_config.
    explicit SshServer(const std::string& more = "Subsystem sftp internal-sftp\n") {
        makeKey("host_key");
        makeKey("user_key");
        folder.write("authorized_keys", folder.read("user_key.pub"));
        ::chmod((folder / "authorized_keys").c_str(), 0600);
        // Required when running as root; containers may lack it.
        if (::geteuid() == 0) ::mkdir("/run/sshd", 0755);
        for (int attempt = 0; attempt < 5 && !server_; ++attempt) {
            port = freePort();
            configure(more);
            start();
        }
        folder.write("known_hosts", knownHost(port, "host_key"));
    }

    /// Restarts a killed server at the same port. Fails if another program uses the port by now.
    void start() {
        server_ = std::make_unique<RunningProgram>(
            std::vector<std::string>{"/usr/sbin/sshd", "-D", "-e", "-f", folder / "sshd_config"}, folder / "log");
        for (int wait = 0; wait < 1000 && !server_->hasEnded(); ++wait) {
            if (const int socket = connectToLoopback(port); socket >= 0) {
                ::close(socket);
                return;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        server_.reset();
    }

    /// `more` are further options of ssh-keygen.
    void makeKey(const std::string& name, const std::string& passphrase = "",
                 const std::vector<std::string>& more = {"-t", "ed25519"}) const {
        std::filesystem::remove(folder / name);
        std::vector<std::string> command{"ssh-keygen", "-q", "-N", passphrase, "-C", "test", "-f", folder / name};
        command.insert(command.end(), more.begin(), more.end());
        runProgram(command, folder / "log");
    }
    /// Returns the known_hosts line of a key.
    std::string knownHost(std::uint16_t atPort, const std::string& key) const {
        return "[127.0.0.1]:" + std::to_string(atPort) + " " + folder.read(key + ".pub");
    }
    /// Returns "SHA256:..." as printed by ssh-keygen.
    std::string fingerprint(const std::string& key) const {
        const auto output = folder / (key + ".fingerprint");
        runProgram({"ssh-keygen", "-lf", folder / (key + ".pub")}, output);
        const auto line = folder.read(key + ".fingerprint");
        const auto begin = line.find("SHA256:");
        return line.substr(begin, line.find(' ', begin) - begin);
    }

    /// Process IDs of the server and its connections.
    void signalAll(int signal) const {
        for (const pid_t pid : descendants(server_->pid())) ::kill(pid, signal);
    }
    void kill() {
        signalAll(SIGKILL);
        server_.reset();
    }

    TempFolder folder;
    std::uint16_t port = 0;

private:
    void configure(const std::string& more) const {
        folder.write("sshd_config", "Port " + std::to_string(port) + "\nListenAddress 127.0.0.1\nHostKey " +
                                        (folder / "host_key") + "\nAuthorizedKeysFile " + (folder / "authorized_keys") +
                                        "\nPidFile none\nUsePAM no\nStrictModes no\nPermitRootLogin yes\n"
                                        "PasswordAuthentication no\nKbdInteractiveAuthentication no\n" +
                                        more);
    }

    static std::vector<pid_t> descendants(pid_t root) {
        std::vector<pid_t> all{root};
        for (std::size_t i = 0; i < all.size(); ++i) {
            const auto pid = std::to_string(all[i]);
            std::ifstream children("/proc/" + pid + "/task/" + pid + "/children");
            for (pid_t child = 0; children >> child;) all.push_back(child);
        }
        return all;
    }

    std::unique_ptr<RunningProgram> server_;
};

} // namespace test
