#pragma once
// Tries a connection to a handheld without changing anything on it.
#include "Components/QLPipe/linux_handheld/sftp_packets.h"
#include "Components/QLPipe/linux_handheld/tcp_connection.h"
#include <optional>

namespace qlpipe {

/// Connects as a transfer does and examines the folder. Returns what a user should know about a connection that can be
/// used. Throws TransferError, UnknownHostKey and ConnectionCancelled.
[[nodiscard]] std::string probeConnection(const SshTarget& target, const SshTimeouts& timeouts);

/// Whether the permissions of a folder keep a user from creating files in it. `user` is the user's number, if known.
/// False if that depends on the groups of the user, which SFTP does not show.
[[nodiscard]] bool keepsOut(const SftpAttributes& folder, std::optional<std::uint32_t> user);

} // namespace qlpipe
