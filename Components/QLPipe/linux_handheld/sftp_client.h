#pragma once
// SFTP requests over one channel. Several may be pending at once.
#include "Components/QLPipe/linux_handheld/sftp_packets.h"
#include "Components/QLPipe/linux_handheld/ssh_channel.h"
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace qlpipe {

/// Paths are paths on the device. A refused request returns an SftpResult; a lost connection or an invalid reply throws
/// TransferError.
class SftpClient {
public:
    SftpClient(const SshTarget& target, const SshTimeouts& timeouts);

    /// A pending request. Each must be awaited once, in any order.
    using Request = std::uint32_t;
    Request startLstat(const std::string& path) { return startOnPath(kSftpLstat, path); }
    Request startRemove(const std::string& path) { return startOnPath(kSftpRemove, path); }
    Request startClose(const std::string& handle) { return startOnPath(kSftpClose, handle); }
    /// Flushes a file to the device's disk. Does nothing if the device does not support this.
    std::optional<Request> startFlush(const std::string& handle);
    Request startWrite(const std::string& handle, std::uint64_t offset, std::string_view bytes);
    /// Sets the attributes, or returns an error.
    SftpResult awaitAttributes(Request request, SftpAttributes& attributes);
    SftpResult awaitResult(Request request) { return awaitResult(request, channel_.timeouts().operation); }
    SftpResult awaitResult(Request request, std::chrono::milliseconds patience);

    SftpResult lstat(const std::string& path, SftpAttributes& attributes);
    SftpResult realPath(const std::string& path, std::string& real);
    SftpResult open(const std::string& path, SftpOpenMode mode, std::string& handle);
    /// Sets "" at the end of the file.
    SftpResult read(const std::string& handle, std::uint64_t offset, std::uint32_t size, std::string& bytes);
    SftpResult close(const std::string& handle);
    SftpResult makeFolder(const std::string& path);
    SftpResult removeFolder(const std::string& path);
    /// Renames. Replaces an existing file if the device supports this; otherwise, and for folders, the name must be
    /// free.
    SftpResult rename(const std::string& from, const std::string& to);
    bool renameReplaces() const { return offers("posix-rename@openssh.com"); }

    struct Entry {
        std::string name;
        SftpAttributes attributes;
    };
    /// In the device's order, without "." and "..".
    SftpResult list(const std::string& folder, std::vector<Entry>& entries);
    /// Bytes available to ordinary users, or -1 if unknown.
    std::int64_t freeSpace(const std::string& folder) { return fileSystem(folder).free; }
    /// False if unknown.
    bool isReadOnly(const std::string& folder) { return fileSystem(folder).isReadOnly; }

    const SshChannel& channel() const { return channel_; }

private:
    struct Reply {
        std::uint8_t type = 0;
        std::string bytes;
    };
    void start();
    Reply firstReply();
    bool offers(const std::string& extension) const { return extensions_.contains(extension); }
    PacketWriter request(SftpPacket type);
    Request startOnPath(SftpPacket type, const std::string& path);
    Request send(PacketWriter& packet);
    Reply receive(std::chrono::milliseconds patience);
    Reply await(Request request, std::chrono::milliseconds patience);
    Reply await(Request request) { return await(request, channel_.timeouts().operation); }
    /// Reads a reply of the kind `type`. A status reply instead becomes the result.
    template <class Read>
    SftpResult readReply(const Reply& reply, std::uint8_t type, Read read);
    SftpResult handleOf(Request request, std::string& handle);
    struct FileSystem {
        std::int64_t free = -1;
        bool isReadOnly = false;
    };
    FileSystem fileSystem(const std::string& folder);
    bool readEntries(const Reply& reply, std::vector<Entry>& entries, SftpResult& result);
    [[noreturn]] void throwInvalid(const std::string& what);

    SshChannel channel_;
    /// Names of the device's protocol extensions.
    std::set<std::string> extensions_;
    Request lastRequest_ = 0;
    /// Pending requests, with the reply once it has arrived.
    std::map<Request, std::optional<Reply>> underWay_;
};

} // namespace qlpipe
