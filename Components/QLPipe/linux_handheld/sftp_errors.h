#pragma once
// Errors of SFTP requests.
#include "Components/QLPipe/linux_handheld/sftp_client.h"

namespace qlpipe {

/// Throws the TransferError of a failed request. `action` is a verb for the message, with `path` as its object.
void demandSftp(SftpClient& client, const std::string& base, const SftpResult& result, const char* action,
                const std::string& path);

} // namespace qlpipe
