#pragma once
// The functions of libssh that are used, and owners of its objects.
#include "Components/QLPipe/base/late_library.h"
#include <libssh/libssh.h>
#include <memory>
#include <string>
#include <type_traits>

namespace qlpipe {

/// libssh, loaded for the first handheld. The functions keep their names.
///
/// libssh's SFTP is not used: it waits indefinitely for a server that does not answer, and sends one write at a time.
struct LibsshLibrary {
    LateLibrary library{"libssh.so.4", "libssh-4"};

#define FERNWICK_LIBSSH(function) decltype(&::function) function = library[#function]
    FERNWICK_LIBSSH(ssh_new);
    FERNWICK_LIBSSH(ssh_free);
    FERNWICK_LIBSSH(ssh_options_set);
    FERNWICK_LIBSSH(ssh_set_blocking);
    FERNWICK_LIBSSH(ssh_connect);
    FERNWICK_LIBSSH(ssh_get_error);
    FERNWICK_LIBSSH(ssh_get_fd);
    FERNWICK_LIBSSH(ssh_get_poll_flags);

    FERNWICK_LIBSSH(ssh_session_is_known_server);
    FERNWICK_LIBSSH(ssh_session_export_known_hosts_entry);
    FERNWICK_LIBSSH(ssh_get_server_publickey);
    FERNWICK_LIBSSH(ssh_get_publickey_hash);
    FERNWICK_LIBSSH(ssh_get_fingerprint_hash);
    FERNWICK_LIBSSH(ssh_clean_pubkey_hash);
    FERNWICK_LIBSSH(ssh_string_free_char);

    FERNWICK_LIBSSH(ssh_key_free);
    FERNWICK_LIBSSH(ssh_key_type);
    FERNWICK_LIBSSH(ssh_pki_import_privkey_file);
    FERNWICK_LIBSSH(ssh_userauth_publickey);
    FERNWICK_LIBSSH(ssh_userauth_agent);

    FERNWICK_LIBSSH(ssh_channel_new);
    FERNWICK_LIBSSH(ssh_channel_free);
    FERNWICK_LIBSSH(ssh_channel_open_session);
    FERNWICK_LIBSSH(ssh_channel_request_sftp);
    FERNWICK_LIBSSH(ssh_channel_write);
    FERNWICK_LIBSSH(ssh_channel_read_timeout);
    FERNWICK_LIBSSH(ssh_channel_is_eof);
#undef FERNWICK_LIBSSH
};

/// Throws TransferError if it cannot be loaded.
const LibsshLibrary& libssh();

/// Deleter that calls a function of libssh.
template <auto Function>
struct LibsshDelete {
    template <class T>
    void operator()(T* object) const {
        (libssh().*Function)(object);
    }
};
template <class Handle, auto Function>
using LibsshOwner = std::unique_ptr<std::remove_pointer_t<Handle>, LibsshDelete<Function>>;

using OwnedSession = LibsshOwner<ssh_session, &LibsshLibrary::ssh_free>;
using OwnedChannel = LibsshOwner<ssh_channel, &LibsshLibrary::ssh_channel_free>;
using OwnedKey = LibsshOwner<ssh_key, &LibsshLibrary::ssh_key_free>;
using OwnedText = LibsshOwner<char*, &LibsshLibrary::ssh_string_free_char>;

} // namespace qlpipe
