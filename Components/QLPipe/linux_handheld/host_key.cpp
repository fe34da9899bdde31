#include "Components/QLPipe/base/ssh_messages.h"
#include "Components/QLPipe/linux_handheld/ssh_session.h"
#include <cctype>
#include <cerrno>
#include <new>
#include <system_error>
#include <unistd.h>

namespace qlpipe {

namespace {

std::string fileKindOf(ssh_keytypes_e type) {
    switch (type) {
    case SSH_KEYTYPE_RSA: return "rsa";
    case SSH_KEYTYPE_ECDSA_P256:
    case SSH_KEYTYPE_ECDSA_P384:
    case SSH_KEYTYPE_ECDSA_P521: return "ecdsa";
    default: return "ed25519";
    }
}

std::string inCapitals(std::string text) {
    for (auto& c : text) c = char(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

std::string fingerprintOf(ssh_key key) {
    unsigned char* hash = nullptr;
    std::size_t length = 0;
    if (libssh().ssh_get_publickey_hash(key, SSH_PUBLICKEY_HASH_SHA256, &hash, &length) != 0) throw std::bad_alloc();
    const OwnedText text{libssh().ssh_get_fingerprint_hash(SSH_PUBLICKEY_HASH_SHA256, hash, length)};
    libssh().ssh_clean_pubkey_hash(&hash);
    if (!text) throw std::bad_alloc();
    return text.get();
}

UnknownHostKey hostKeyOf(const SshSession& session) {
    const auto demand = [&](int result) {
        if (result != SSH_OK)
            throw sshError(SshMessage::HandshakeFailed,
                           {{"handheld", session.target().address()}, {"reason", session.problem()}});
    };
    ssh_key key = nullptr;
    demand(libssh().ssh_get_server_publickey(session.get(), &key));
    const OwnedKey owner{key};
    char* line = nullptr;
    demand(libssh().ssh_session_export_known_hosts_entry(session.get(), &line));
    const OwnedText lineOwner{line};
    const auto type = libssh().ssh_key_type(key);
    std::string text = line;
    text.erase(text.find_last_not_of('\n') + 1);
    return {{}, inCapitals(fileKindOf(type)), fileKindOf(type), fingerprintOf(key), text};
}

TransferError hostError(const SshTarget& target, const UnknownHostKey& key, SshMessage message) {
    return sshError(message, {{"handheld", target.address()},
                              {"kind", key.kind},
                              {"fingerprint", key.fingerprint},
                              {"keyFile", key.fileKind},
                              {"line", key.line},
                              {"knownHosts", shellWord(target.knownHosts)},
                              {"host", key.line.substr(0, key.line.find(' '))}});
}

[[noreturn]] void refuseUnknownHost(const SshSession& session) {
    auto key = hostKeyOf(session);
    static_cast<TransferError&>(key) = hostError(session.target(), key, SshMessage::HostKeyUnknown);
    throw key;
}

} // namespace

void checkHostKey(const SshSession& session) {
    const auto& file = session.target().knownHosts;
    // libssh treats an unreadable file like an empty one.
    if (::access(file.c_str(), R_OK) != 0 && errno != ENOENT)
        throw sshError(SshMessage::KnownHostsUnreadable, {{"file", file},
                                                          {"reason", std::generic_category().message(errno)},
                                                          {"handheld", session.target().address()}});
    switch (libssh().ssh_session_is_known_server(session.get())) {
    case SSH_KNOWN_HOSTS_OK: return;
    case SSH_KNOWN_HOSTS_CHANGED:
    case SSH_KNOWN_HOSTS_OTHER: throw hostError(session.target(), hostKeyOf(session), SshMessage::HostKeyChanged);
    case SSH_KNOWN_HOSTS_UNKNOWN:
    case SSH_KNOWN_HOSTS_NOT_FOUND: refuseUnknownHost(session);
    case SSH_KNOWN_HOSTS_ERROR: break;
    }
    throw sshError(SshMessage::KnownHostsUnreadable,
                   {{"file", file}, {"reason", session.problem()}, {"handheld", session.target().address()}});
}

} // namespace qlpipe
