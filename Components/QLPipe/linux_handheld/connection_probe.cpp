#include "Components/QLPipe/linux_handheld/connection_probe.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/ssh_messages.h"
#include "Components/QLPipe/linux_handheld/sftp_client.h"
#include "Components/QLPipe/linux_handheld/sftp_errors.h"

namespace qlpipe {

namespace {

constexpr char kRoot[] = "root";

/// Examines the folder of a target, or the nearest existing folder above it, in which a transfer would create it.
class FolderProbe {
public:
    explicit FolderProbe(SftpClient& client) : client_(client), target_(client.channel().target()) {}

    std::string run() {
        const auto folder = absoluteFolder();
        std::string existing = folder;
        const auto found = nearest(existing);
        if (!found.isFolder()) throw sshError(SshMessage::NotFolder, {{"path", existing}});
        if (keepsOut(found, ownNumber())) refuseWrite(existing, "its permissions do not allow it");
        if (client_.isReadOnly(existing)) refuseWrite(existing, "its file system is read-only");
        return summary(folder, existing);
    }

private:
    void demand(const SftpResult& result, const char* action, const std::string& path) {
        demandSftp(client_, path, result, action, path);
    }

    std::string absoluteFolder() {
        demand(client_.realPath(".", home_), "find", "the home folder");
        if (target_.folder.starts_with('/')) return target_.folder;
        return (home_ == "/" ? "" : home_) + "/" + target_.folder;
    }

    SftpAttributes nearest(std::string& path) {
        SftpAttributes found;
        auto result = client_.lstat(path, found);
        while (result.code == kSftpNoSuchFile && path != "/") {
            path = folderOf(path).empty() ? "/" : folderOf(path);
            result = client_.lstat(path, found);
        }
        demand(result, "examine", path);
        return found.isLink() ? targetOf(path) : found;
    }

    SftpAttributes targetOf(std::string& path) {
        const auto link = path;
        SftpAttributes found;
        demand(client_.realPath(link, path), "find", link);
        demand(client_.lstat(path, found), "find", link);
        return found;
    }

    /// SFTP does not show it. A home folder usually belongs to its user, unless it is one that the system set up.
    std::optional<std::uint32_t> ownNumber() {
        SftpAttributes home;
        if (target_.user == kRoot) return 0;
        if (!client_.lstat(home_, home) || !home.isFolder() || home.owner.value_or(0) == 0) return {};
        return home.owner;
    }

    [[noreturn]] void refuseWrite(const std::string& path, const char* why) {
        throw sshError(SshMessage::AccessDenied,
                       {{"user", target_.user}, {"action", "write to"}, {"path", path}, {"reason", why}});
    }

    std::string summary(const std::string& folder, const std::string& existing) {
        const auto free = client_.freeSpace(existing);
        return fillIn("The handheld {handheld} can be used. Applications go to {folder}{isNew}.",
                      {{"handheld", target_.user + "@" + target_.address()},
                       {"folder", folder},
                       {"isNew", folder == existing || exists(folder) ? "" : ", which the first transfer makes"}}) +
               (free < 0 ? "" : " It has " + bytesInWords(free) + " free.");
    }
    bool exists(const std::string& path) {
        SftpAttributes found;
        return bool(client_.lstat(path, found));
    }

    SftpClient& client_;
    const SshTarget& target_;
    std::string home_;
};

} // namespace

bool keepsOut(const SftpAttributes& folder, std::optional<std::uint32_t> user) {
    constexpr std::uint32_t kOwner = 0300, kGroup = 0030, kOthers = 0003; // to write and to enter
    const auto grants = [&](std::uint32_t bits) { return (folder.permissions & bits) == bits; };
    if (!folder.owner || !user || *user == 0) return false;
    if (*folder.owner == *user) return !grants(kOwner);
    return !grants(kGroup) && !grants(kOthers);
}

std::string probeConnection(const SshTarget& target, const SshTimeouts& timeouts) {
    SftpClient client{target, timeouts};
    return FolderProbe{client}.run();
}

} // namespace qlpipe
