// Connecting, verifying the host key and authenticating.
#include "tests/pipes_ssh/cutting_proxy.h"
#include "tests/pipes_ssh/ssh_device.h"
#include <optional>
#include <sys/un.h>

namespace {

using qlpipe::SshMessage;
using qlpipe::SshStorage;
using test::expectError;
using test::transferErrorOf;

/// Sets an environment variable during a test, or unsets it for nullopt.
class Variable {
public:
    Variable(const char* name, const std::optional<std::string>& value) : name_(name) {
        if (const char* old = std::getenv(name)) old_ = old;
        set(value);
    }
    ~Variable() { set(old_); }

private:
    void set(const std::optional<std::string>& value) const {
        if (value)
            ::setenv(name_, value->c_str(), 1);
        else
            ::unsetenv(name_);
    }
    const char* name_;
    std::optional<std::string> old_;
};

class SshConnection : public test::SshDevice {
protected:
    Variable noAgent{"SSH_AUTH_SOCK", std::nullopt};
};

/// With an SSH agent without keys.
class SshAgent : public SshConnection {
protected:
    SshAgent() {
        for (int wait = 0; wait < 1000 && !answers(); ++wait) std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    bool answers() const {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        socket.copy(address.sun_path, sizeof address.sun_path - 1);
        const int probe = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const bool taken = ::connect(probe, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
        ::close(probe);
        return taken;
    }
    void add(const std::string& key) const {
        ::chmod((server.folder / key).c_str(), 0600);
        test::runProgram({"ssh-add", "-q", server.folder / key}, server.folder / "log");
    }
    /// Adds a key that the device knows to the agent, and protects its file with a passphrase.
    void addProtectedKey() const {
        add("user_key");
        test::runProgram({"ssh-keygen", "-q", "-p", "-P", "", "-N", "secret", "-f", server.folder / "user_key"},
                         server.folder / "log");
    }

    std::string socket = server.folder / "agent";
    test::RunningProgram agent{{"ssh-agent", "-D", "-a", socket}, server.folder / "log"};
    Variable variable{"SSH_AUTH_SOCK", socket};
};

TEST_F(SshConnection, AuthenticatesWithTheKeyFile) { EXPECT_NO_THROW(connect()); }

TEST_F(SshConnection, UsesTheDefaultKeysWithoutAKeyFile) {
    std::filesystem::create_directory(server.folder / ".ssh");
    std::filesystem::rename(server.folder / "user_key", server.folder / ".ssh/id_ed25519");
    const Variable home{"HOME", server.folder.path()};
    auto to = target();
    to.keyFile = "";
    EXPECT_NO_THROW((SshStorage{to, patient()}));
}

TEST_F(SshConnection, RefusesAnUnknownHostAndExplainsHowToAcceptIt) {
    server.folder.write("known_hosts", "");
    const auto error = refusal(target());
    expectError(error, SshMessage::HostKeyUnknown,
                {"ED25519 " + server.fingerprint("host_key"), "ssh-keygen -lf /etc/ssh/ssh_host_ed25519_key.pub"});
    EXPECT_FALSE(isOnDevice(""));
    const auto command = error.text.substr(error.text.find("echo '"));
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    EXPECT_NO_THROW(connect());
}

TEST_F(SshConnection, AcceptsHashedHostNames) {
    test::runProgram({"ssh-keygen", "-H", "-f", server.folder / "known_hosts"}, server.folder / "log");
    EXPECT_THAT(server.folder.read("known_hosts"), testing::StartsWith("|1|"));
    EXPECT_NO_THROW(connect());
}

TEST_F(SshConnection, TreatsAMissingKnownHostsFileAsEmpty) {
    std::filesystem::remove(server.folder / "known_hosts");
    expectError(refusal(target()), SshMessage::HostKeyUnknown, {server.fingerprint("host_key")});
}

TEST_F(SshConnection, RefusesAChangedHostKeyAndExplainsHowToAcceptIt) {
    server.makeKey("other_key");
    server.folder.write("known_hosts", server.knownHost(server.port, "other_key"));
    const auto error = refusal(target());
    expectError(error, SshMessage::HostKeyChanged, {server.fingerprint("host_key"), "another device answers"});
    const auto command = error.text.substr(error.text.find("ssh-keygen -R"));
    const auto both = command.substr(0, command.find(" and make")) + "; " + command.substr(command.find("echo '"));
    ASSERT_EQ(std::system(("(" + both + ") >/dev/null 2>&1").c_str()), 0) << both;
    EXPECT_EQ(transferErrorOf([&] { connect(); }).text, "no error");
}

TEST_F(SshConnection, FailsIfKnownHostsCannotBeRead) {
    auto to = target();
    to.knownHosts = server.folder / "known_hosts/below_a_file";
    expectError(refusal(to), SshMessage::KnownHostsUnreadable, {to.knownHosts});
}

TEST_F(SshConnection, ReportsAKeyThatTheDeviceRefuses) {
    server.makeKey("stranger");
    auto to = target();
    to.keyFile = server.folder / "stranger";
    expectError(refusal(to), SshMessage::KeysRefused, {to.keyFile, "ssh-copy-id", std::to_string(server.port)});
}

TEST_F(SshConnection, ReportsThatThereAreNoKeys) {
    const Variable home{"HOME", server.folder / "nobody"};
    auto to = target();
    to.keyFile = "";
    expectError(refusal(to), SshMessage::KeysRefused, {"there are none"});
}

TEST_F(SshConnection, ReportsAnUnusableKeyFile) {
    auto to = target();
    to.keyFile = server.folder / "none";
    expectError(refusal(to), SshMessage::KeyFileMissing, {to.keyFile, "No such file", "KeyFile"});
    to.keyFile = server.folder / "user_key.pub";
    expectError(refusal(to), SshMessage::KeyFileUnusable, {to.keyFile});
}

TEST_F(SshConnection, RefersToTheAgentForAPassphrase) {
    auto to = target();
    to.keyFile = server.folder / "it's protected";
    for (const auto& kind : {std::vector<std::string>{"-t", "ed25519"}, {"-t", "ecdsa", "-m", "PEM"}}) {
        server.makeKey("it's protected", "secret", kind);
        expectError(refusal(to), SshMessage::KeyNeedsAgent,
                    {"ssh-add '", "it'\\''s protected'", "no agent is running"});
    }
}

TEST_F(SshConnection, AcceptsOtherTypesOfKeys) {
    auto to = target();
    to.keyFile = server.folder / "other";
    for (const auto& kind : {std::vector<std::string>{"-t", "ecdsa", "-m", "PEM"}, {"-t", "rsa", "-b", "2048"}}) {
        server.makeKey("other", "", kind);
        server.folder.write("authorized_keys", server.folder.read("other.pub"));
        EXPECT_EQ(transferErrorOf([&] { SshStorage{to, patient()}; }).text, "no error") << kind[1];
    }
}

TEST_F(SshAgent, AuthenticatesWithAKeyOfTheAgent) {
    add("user_key");
    auto to = target();
    to.keyFile = "";
    EXPECT_NO_THROW((SshStorage{to, patient()}));
}

TEST_F(SshAgent, AuthenticatesWithTheAgentsCopyOfAProtectedKey) {
    addProtectedKey();
    EXPECT_NO_THROW(connect());
}

TEST_F(SshAgent, TriesTheNextKeyIfTheFirstIsRefused) {
    server.makeKey("stranger");
    add("stranger");
    add("user_key");
    auto to = target();
    to.keyFile = "";
    EXPECT_NO_THROW((SshStorage{to, patient()}));
}

TEST_F(SshAgent, ReportsThatTheAgentDoesNotHaveTheProtectedKey) {
    server.makeKey("protected", "secret");
    auto to = target();
    to.keyFile = server.folder / "protected";
    expectError(refusal(to), SshMessage::KeyNeedsAgent, {"ssh-add '" + to.keyFile + "'", "none of the agent's keys"});
}

TEST_F(SshAgent, ReportsTheKeysTriedIfTheServerDisconnects) {
    for (int i = 0; i < 8; ++i) {
        const auto key = "stranger" + std::to_string(i);
        server.makeKey(key);
        add(key);
    }
    auto to = target();
    to.keyFile = "";
    expectError(refusal(to), SshMessage::KeysRefused, {"SSH agent", "KeyFile"});
}

TEST_F(SshConnection, ReportsARefusedConnection) {
    expectError(refusal(targetAt(test::freePort())), SshMessage::NotConnected, {"127.0.0.1:", "Connection refused"});
}

TEST_F(SshConnection, ReachesAHandheldByIpv6) {
    const int probe = ::socket(AF_INET6, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in6 address{};
    address.sin6_family = AF_INET6;
    address.sin6_addr = in6addr_loopback;
    const bool works = ::bind(probe, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    ::close(probe);
    if (!works) GTEST_SKIP() << "this machine has no IPv6";
    const test::SshServer sixth{"Subsystem sftp internal-sftp\nListenAddress ::1\n"};
    auto to = target();
    to.host = "::1";
    to.port = sixth.port;
    to.keyFile = sixth.folder / "user_key";
    sixth.folder.write("known_hosts", "[::1]:" + std::to_string(sixth.port) + " " + sixth.folder.read("host_key.pub"));
    to.knownHosts = sixth.folder / "known_hosts";
    EXPECT_EQ(transferErrorOf([&] { SshStorage{to, patient()}; }).text, "no error");
}

TEST_F(SshConnection, ReportsAnUnknownHostName) {
    auto to = target();
    // An invalid label, so that no name server is queried.
    to.host = std::string(64, 'x') + ".invalid";
    expectError(refusal(to), SshMessage::HostNotFound, {to.host, "Host"});
}

TEST_F(SshConnection, TimesOutIfTheServerSendsNothing) {
    const int silent = test::listenOnLoopback();
    auto timeouts = patient();
    timeouts.connect = std::chrono::milliseconds(200);
    const auto begin = std::chrono::steady_clock::now();
    expectError(transferErrorOf([&] {
                    SshStorage{targetAt(test::portOfSocket(silent)), timeouts};
                }),
                SshMessage::NoAnswer, {"0.2 seconds"});
    EXPECT_GE(std::chrono::steady_clock::now() - begin, timeouts.connect);
    ::close(silent);
}

TEST_F(SshConnection, ReportsAServerThatIsNotSsh) {
    const int listener = test::listenOnLoopback();
    std::thread other([listener] {
        const int socket = ::accept(listener, nullptr, nullptr);
        ::send(socket, "HTTP/1.0 400 Bad Request\r\n\r\n", 28, MSG_NOSIGNAL);
        ::close(socket);
    });
    expectError(refusal(targetAt(test::portOfSocket(listener))), SshMessage::HandshakeFailed, {"at this port"});
    other.join();
    ::close(listener);
}

TEST(SshServerWithoutSftp, IsReported) {
    for (const char* configuration : {"", "Subsystem sftp /nowhere/sftp-server\n"}) {
        const test::SshServer server{configuration};
        const qlpipe::SshTarget to{"127.0.0.1",
                                   server.port,
                                   qlpipe::userName(),
                                   server.folder / "user_key",
                                   server.folder / "device",
                                   server.folder / "known_hosts",
                                   false};
        expectError(transferErrorOf([&] { SshStorage{to, {}}; }), SshMessage::TransferNotOffered, {"Install"});
    }
}

TEST(SshServerThatPrints, IsReported) {
    const test::SshServer server{"Subsystem sftp echo Welcome to this handheld; cat\n"};
    const qlpipe::SshTarget to{"127.0.0.1",
                               server.port,
                               qlpipe::userName(),
                               server.folder / "user_key",
                               server.folder / "device",
                               server.folder / "known_hosts",
                               false};
    expectError(transferErrorOf([&] { SshStorage{to, {}}; }), SshMessage::AnswerInvalid, {".bashrc"});
}

/// Starts correctly and then sends an invalid reply to the first request, which has number 1.
TEST(SshServerThatTalksNonsense, IsReported) {
    using namespace std::string_literals;
    const std::pair<std::string, const char*> nonsense[]{
        {"\0\xFF\xFF\xFF"s, "16777215 bytes"},
        {"\0\0\0\x09\x65\0\0\0\x07\0\0\0\0"s, "without a request"},
        {"\0\0\0\x09\x65\0\0\0\x01\0\0\0\0"s, "without a result"},
        {"\0\0\0\x05\x66\0\0\0\x01"s, "kind 102"},
        {"\0\0\0\x09\x69\0\0\0\x01\0\0\0\x01"s, "truncated"},
    };
    const test::TempFolder folder;
    const test::SshServer server{"Subsystem sftp cat " + (folder / "answer") + " -\n"};
    for (const auto& [bytes, words] : nonsense) {
        folder.write("answer", "\0\0\0\x05\x02\0\0\0\x03"s + bytes);
        const qlpipe::SshTarget to{"127.0.0.1",
                                   server.port,
                                   qlpipe::userName(),
                                   server.folder / "user_key",
                                   server.folder / "device",
                                   server.folder / "known_hosts",
                                   false};
        expectError(transferErrorOf([&] { SshStorage{to, {}}; }), SshMessage::AnswerInvalid, {words});
    }
}

TEST(SshServerThatWantsMore, IsReported) {
    const test::SshServer server{"Subsystem sftp internal-sftp\nAuthenticationMethods publickey,publickey\n"};
    const qlpipe::SshTarget to{"127.0.0.1",
                               server.port,
                               qlpipe::userName(),
                               server.folder / "user_key",
                               server.folder / "device",
                               server.folder / "known_hosts",
                               false};
    expectError(transferErrorOf([&] { SshStorage{to, {}}; }), SshMessage::KeyNotEnough, {"AuthenticationMethods"});
}

TEST_F(SshConnection, ClosesAllDescriptors) {
    const auto open = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    connect();
    const auto before = open();
    connect();
    server.folder.write("known_hosts", "");
    refusal(target());
    refusal(targetAt(test::freePort()));
    EXPECT_EQ(open(), before);
}

} // namespace
