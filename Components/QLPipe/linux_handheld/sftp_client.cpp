#include "Components/QLPipe/linux_handheld/sftp_client.h"
#include "Components/QLPipe/base/ssh_messages.h"
#include <algorithm>
#include <limits>

namespace qlpipe {

namespace {

/// The maximum packet size of OpenSSH.
constexpr std::uint32_t kLongestPacket = 256 * 1024;
constexpr std::uint32_t kSftpOwnVersion = 3;
/// Protects against a device that sends entries without end.
constexpr std::size_t kMostEntries = 100'000;

} // namespace

SftpClient::SftpClient(const SshTarget& target, const SshTimeouts& timeouts) : channel_(target, timeouts) { start(); }

void SftpClient::start() {
    const auto reply = firstReply();
    PacketReader reader{reply.bytes};
    if (reply.type != kSftpVersion || reader.number() < kSftpOwnVersion) throwInvalid("an unsupported SFTP version");
    while (reader.isWhole() && !reader.isAtEnd()) {
        const auto name = reader.text();
        reader.text();
        extensions_.emplace(name);
    }
}

/// A server whose SFTP program is missing accepts the transfer and then closes it.
SftpClient::Reply SftpClient::firstReply() try {
    auto packet = PacketWriter{kSftpInit}.number(kSftpOwnVersion);
    channel_.send(packet.finished());
    return receive(channel_.timeouts().connect);
} catch (const TransferError& error) {
    if (error.number != std::int32_t(SshMessage::ConnectionLost)) throw;
    throw sshError(SshMessage::TransferNotOffered,
                   {{"handheld", channel_.target().address()}, {"reason", "its program did not start"}});
}

PacketWriter SftpClient::request(SftpPacket type) { return PacketWriter{type}.number(++lastRequest_); }

SftpClient::Request SftpClient::startOnPath(SftpPacket type, const std::string& path) {
    return send(request(type).text(path));
}

SftpClient::Request SftpClient::startWrite(const std::string& handle, std::uint64_t offset, std::string_view bytes) {
    return send(request(kSftpWrite).text(handle).number64(offset).text(bytes));
}

SftpClient::Request SftpClient::send(PacketWriter& packet) {
    channel_.send(packet.finished());
    underWay_.emplace(lastRequest_, std::nullopt);
    return lastRequest_;
}

SftpClient::Reply SftpClient::receive(std::chrono::milliseconds patience) {
    std::string length(4, '\0');
    channel_.receive(length.data(), length.size(), patience);
    const auto size = PacketReader{length}.number();
    if (size == 0 || size > kLongestPacket) throwInvalid("a packet of " + std::to_string(size) + " bytes");
    std::string bytes(size, '\0');
    channel_.receive(bytes.data(), bytes.size(), patience);
    return {std::uint8_t(bytes[0]), bytes.substr(1)};
}

SftpClient::Reply SftpClient::await(Request request, std::chrono::milliseconds patience) {
    const auto awaited = underWay_.find(request);
    while (!awaited->second) {
        auto reply = receive(patience);
        PacketReader reader{reply.bytes};
        const auto found = underWay_.find(reader.number());
        if (!reader.isWhole() || found == underWay_.end() || found->second) throwInvalid("a reply without a request");
        reply.bytes.erase(0, 4);
        found->second = std::move(reply);
    }
    auto reply = std::move(*awaited->second);
    underWay_.erase(awaited);
    return reply;
}

template <class Read>
SftpResult SftpClient::readReply(const Reply& reply, std::uint8_t type, Read read) {
    PacketReader reader{reply.bytes};
    if (reply.type == kSftpStatus) {
        // Old servers omit the message.
        SftpResult result{reader.number(), saidByDevice(reader.text())};
        if (result && type != kSftpStatus) throwInvalid("success without a result");
        return result;
    }
    if (reply.type != type) throwInvalid("a packet of kind " + std::to_string(reply.type));
    read(reader);
    if (!reader.isWhole()) throwInvalid("a truncated packet");
    return {};
}

SftpResult SftpClient::awaitResult(Request request, std::chrono::milliseconds patience) {
    return readReply(await(request, patience), kSftpStatus, [](PacketReader&) {});
}

SftpResult SftpClient::awaitAttributes(Request request, SftpAttributes& attributes) {
    return readReply(await(request), kSftpAttributes, [&](PacketReader& reader) { attributes = reader.attributes(); });
}

SftpResult SftpClient::lstat(const std::string& path, SftpAttributes& attributes) {
    return awaitAttributes(startLstat(path), attributes);
}

SftpResult SftpClient::realPath(const std::string& path, std::string& real) {
    return readReply(await(startOnPath(kSftpRealPath, path)), kSftpName, [&](PacketReader& reader) {
        if (reader.number() != 1) throwInvalid("more than one path");
        real = reader.text();
    });
}

SftpResult SftpClient::handleOf(Request request, std::string& handle) {
    return readReply(await(request), kSftpHandle, [&](PacketReader& reader) { handle = reader.text(); });
}

SftpResult SftpClient::open(const std::string& path, SftpOpenMode mode, std::string& handle) {
    return handleOf(send(request(kSftpOpen).text(path).number(mode).number(0)), handle);
}

SftpResult SftpClient::read(const std::string& handle, std::uint64_t offset, std::uint32_t size, std::string& bytes) {
    bytes.clear();
    auto result = readReply(await(send(request(kSftpRead).text(handle).number64(offset).number(size))), kSftpData,
                            [&](PacketReader& reader) { bytes = reader.text(); });
    if (result.code == kSftpEndOfFile) result.code = kSftpOk;
    return result;
}

SftpResult SftpClient::close(const std::string& handle) { return awaitResult(startClose(handle)); }

std::optional<SftpClient::Request> SftpClient::startFlush(const std::string& handle) {
    if (!offers("fsync@openssh.com")) return {};
    return send(request(kSftpExtended).text("fsync@openssh.com").text(handle));
}

SftpResult SftpClient::makeFolder(const std::string& path) {
    return awaitResult(send(request(kSftpMakeFolder).text(path).number(0)));
}

SftpResult SftpClient::removeFolder(const std::string& path) {
    return awaitResult(startOnPath(kSftpRemoveFolder, path));
}

SftpResult SftpClient::rename(const std::string& from, const std::string& to) {
    auto packet = renameReplaces() ? request(kSftpExtended).text("posix-rename@openssh.com") : request(kSftpRename);
    return awaitResult(send(packet.text(from).text(to)));
}

SftpResult SftpClient::list(const std::string& folder, std::vector<Entry>& entries) {
    std::string handle;
    if (auto result = handleOf(startOnPath(kSftpOpenFolder, folder), handle); !result) return result;
    SftpResult result;
    while (readEntries(await(startOnPath(kSftpReadFolder, handle)), entries, result)) continue;
    (void)close(handle);
    if (result.code == kSftpEndOfFile) result.code = kSftpOk;
    return result;
}

bool SftpClient::readEntries(const Reply& reply, std::vector<Entry>& entries, SftpResult& result) {
    result = readReply(reply, kSftpName, [&](PacketReader& reader) {
        for (auto count = reader.number(); count > 0 && reader.isWhole(); --count) {
            const auto name = reader.text();
            reader.text(); // long name, for display
            const auto attributes = reader.attributes();
            // Such a name could lead out of the folder.
            if (name.find('/') != std::string_view::npos) throwInvalid("a name with a slash");
            if (entries.size() == kMostEntries) throwInvalid("a folder with too many entries");
            if (!name.empty() && name != "." && name != "..") entries.push_back({std::string{name}, attributes});
        }
    });
    return bool(result);
}

SftpClient::FileSystem SftpClient::fileSystem(const std::string& folder) {
    constexpr std::uint64_t kReadOnly = 1, kMost = std::numeric_limits<std::int64_t>::max();
    if (!offers("statvfs@openssh.com")) return {};
    std::uint64_t bytes = 0, flags = 0;
    const auto sent = send(request(kSftpExtended).text("statvfs@openssh.com").text(folder));
    const auto result = readReply(await(sent), kSftpExtendedReply, [&](PacketReader& reader) {
        reader.number64(); // preferred block size
        const auto block = reader.number64();
        reader.number64(), reader.number64(); // total blocks, free blocks
        const auto blocks = reader.number64();
        if (__builtin_mul_overflow(block, blocks, &bytes)) bytes = kMost;
        for (int i = 0; i < 4; ++i) reader.number64(); // total, free and available files; the file system's number
        flags = reader.number64();
    });
    if (!result) return {};
    return {std::int64_t(std::min(bytes, kMost)), (flags & kReadOnly) != 0};
}

void SftpClient::throwInvalid(const std::string& what) {
    channel_.giveUp();
    throw sshError(SshMessage::AnswerInvalid, {{"handheld", channel_.target().address()}, {"reason", what}});
}

} // namespace qlpipe
