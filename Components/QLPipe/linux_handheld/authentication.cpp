#include "Components/QLPipe/base/ssh_messages.h"
#include "Components/QLPipe/linux_handheld/ssh_session.h"
#include "Components/QLPipe/linux_handheld/user_account.h"
#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <unistd.h>

namespace qlpipe {

namespace {

struct KeyFile {
    OwnedKey key;
    bool hasPassphrase = false;
};

/// Passphrase callback: records that the key has a passphrase and provides none.
int notePassphrase(const char*, char*, std::size_t, int, int, void* noted) {
    *static_cast<bool*>(noted) = true;
    return -1;
}

KeyFile readKeyFile(const std::string& path) {
    KeyFile file;
    ssh_key key = nullptr;
    if (libssh().ssh_pki_import_privkey_file(path.c_str(), nullptr, &notePassphrase, &file.hasPassphrase, &key) ==
        SSH_OK)
        file.key.reset(key);
    return file;
}

/// The methods of authentication, tried one after the other.
class Authentication {
public:
    explicit Authentication(const SshSession& session) : session_(session), target_(session.target()) {}

    bool byFile(const std::string& path, const KeyFile& file) {
        tried(path);
        return accepted(session_.finish(
            SSH_AUTH_AGAIN, [&] { return libssh().ssh_userauth_publickey(session_.get(), nullptr, file.key.get()); }));
    }

    bool byAgent() {
        if (!agentRuns()) return false;
        tried("the keys of the SSH agent");
        return accepted(
            session_.finish(SSH_AUTH_AGAIN, [&] { return libssh().ssh_userauth_agent(session_.get(), nullptr); }));
    }

    bool byUsualFiles() {
        for (const char* name : {"id_ed25519", "id_ecdsa", "id_rsa"}) {
            const auto path = homeFolder() + "/.ssh/" + name;
            if (::access(path.c_str(), R_OK) != 0) continue;
            const auto file = readKeyFile(path);
            if (file.key && byFile(path, file)) return true;
            if (file.hasPassphrase) tried(path + ", which has a passphrase and is used only through the agent");
        }
        return false;
    }

    static bool agentRuns() {
        const char* socket = std::getenv("SSH_AUTH_SOCK");
        return socket && *socket;
    }

    [[noreturn]] void refuse() const {
        throw sshError(SshMessage::KeysRefused, {{"account", target_.user + "@" + target_.address()},
                                                 {"tried", tried_.empty() ? "there are none" : tried_},
                                                 {"port", std::to_string(target_.port)},
                                                 {"login", target_.user + "@" + target_.host}});
    }

private:
    void tried(const std::string& what) { tried_ += (tried_.empty() ? "" : "; ") + what; }

    bool accepted(int result) const {
        if (result == SSH_AUTH_PARTIAL)
            throw sshError(SshMessage::KeyNotEnough, {{"handheld", target_.address()}, {"user", target_.user}});
        // Servers disconnect after a few unknown keys.
        if (result == SSH_AUTH_ERROR && session_.problem().find("Too many") != std::string::npos) refuse();
        if (result == SSH_AUTH_ERROR)
            throw sshError(SshMessage::ConnectionLost,
                           {{"handheld", target_.address()}, {"reason", session_.problem()}});
        return result == SSH_AUTH_SUCCESS;
    }

    const SshSession& session_;
    const SshTarget& target_;
    std::string tried_;
};

void authenticateByFile(Authentication& ways, const std::string& path) {
    if (::access(path.c_str(), R_OK) != 0)
        throw sshError(SshMessage::KeyFileMissing,
                       {{"file", path}, {"reason", std::generic_category().message(errno)}});
    const auto file = readKeyFile(path);
    if (!file.key && !file.hasPassphrase) throw sshError(SshMessage::KeyFileUnusable, {{"file", path}});
    if (file.key && ways.byFile(path, file)) return;
    if (ways.byAgent()) return;
    if (file.key) ways.refuse();
    const char* why = Authentication::agentRuns() ? "none of the agent's keys was accepted"
                                                  : "no agent is running (SSH_AUTH_SOCK is not set)";
    throw sshError(SshMessage::KeyNeedsAgent, {{"file", path}, {"reason", why}, {"quotedFile", shellWord(path)}});
}

} // namespace

void authenticate(const SshSession& session) {
    Authentication ways{session};
    if (!session.target().keyFile.empty()) return authenticateByFile(ways, session.target().keyFile);
    if (!ways.byAgent() && !ways.byUsualFiles()) ways.refuse();
}

} // namespace qlpipe
