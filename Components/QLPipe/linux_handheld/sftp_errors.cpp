#include "Components/QLPipe/linux_handheld/sftp_errors.h"
#include "Components/QLPipe/base/ssh_messages.h"

namespace qlpipe {

namespace {

/// If an operation fails with less free space than this, the file system is considered full.
constexpr std::int64_t kFull = 64 * 1024;

} // namespace

void demandSftp(SftpClient& client, const std::string& base, const SftpResult& result, const char* action,
                const std::string& path) {
    if (result) return;
    const auto& target = client.channel().target();
    if (result.code == kSftpNoSuchFile) throw sshError(SshMessage::NotThere, {{"action", action}, {"path", path}});
    if (result.code == kSftpPermissionDenied)
        throw sshError(SshMessage::AccessDenied,
                       {{"action", action}, {"path", path}, {"reason", result.text}, {"user", target.user}});
    const auto room = result.code == kSftpFailure ? client.freeSpace(base) : -1;
    if (room >= 0 && room < kFull)
        throw sshError(SshMessage::DeviceFull, {{"handheld", target.address()}, {"action", action}, {"path", path}});
    throw sshError(SshMessage::OperationFailed,
                   {{"handheld", target.address()}, {"action", action}, {"path", path}, {"reason", result.text}});
}

} // namespace qlpipe
