#pragma once
// SFTP version 3: constants and packets.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qlpipe {

enum SftpPacket : std::uint8_t {
    kSftpInit = 1,
    kSftpVersion = 2,
    kSftpOpen = 3,
    kSftpClose = 4,
    kSftpRead = 5,
    kSftpWrite = 6,
    kSftpLstat = 7,
    kSftpOpenFolder = 11,
    kSftpReadFolder = 12,
    kSftpRemove = 13,
    kSftpMakeFolder = 14,
    kSftpRemoveFolder = 15,
    kSftpRealPath = 16,
    kSftpRename = 18,
    kSftpStatus = 101,
    kSftpHandle = 102,
    kSftpData = 103,
    kSftpName = 104,
    kSftpAttributes = 105,
    kSftpExtended = 200,
    kSftpExtendedReply = 201,
};

enum SftpCode : std::uint32_t {
    kSftpOk = 0,
    kSftpEndOfFile = 1,
    kSftpNoSuchFile = 2,
    kSftpPermissionDenied = 3,
    kSftpFailure = 4,
};

enum SftpOpenMode : std::uint32_t {
    kSftpForReading = 1,
    /// Creates a file for writing. Fails if the name exists, even as a link.
    kSftpNewFile = 2 | 8 | 32,
};

/// The status of a request, and the device's message.
struct [[nodiscard]] SftpResult {
    std::uint32_t code = kSftpOk;
    std::string text;
    explicit operator bool() const { return code == kSftpOk; }
};

/// Attributes of a file or folder.
struct SftpAttributes {
    std::uint64_t size = 0;
    /// POSIX mode including the file type; 0 if unknown.
    std::uint32_t permissions = 0;
    /// The number of the user to whom it belongs; nothing if unknown.
    std::optional<std::uint32_t> owner;

    bool isFolder() const { return (permissions & 0170000) == 0040000; }
    bool isFile() const { return (permissions & 0170000) == 0100000; }
    bool isLink() const { return (permissions & 0170000) == 0120000; }
};

/// Builds a packet, which begins with its length.
class PacketWriter {
public:
    explicit PacketWriter(SftpPacket type) { number8(type); }

    PacketWriter& number8(std::uint8_t value) {
        bytes_ += char(value);
        return *this;
    }
    PacketWriter& number(std::uint32_t value) {
        for (int shift = 24; shift >= 0; shift -= 8) bytes_ += char(value >> shift);
        return *this;
    }
    PacketWriter& number64(std::uint64_t value) {
        return number(std::uint32_t(value >> 32)).number(std::uint32_t(value));
    }
    PacketWriter& text(std::string_view value) {
        number(std::uint32_t(value.size()));
        bytes_ += value;
        return *this;
    }

    /// Completes and returns the packet. Nothing can be added afterwards.
    std::string_view finished() {
        const auto size = std::uint32_t(bytes_.size() - 4);
        for (std::size_t i = 0; i < 4; ++i) bytes_[i] = char(size >> (24 - 8 * i));
        return bytes_;
    }

private:
    std::string bytes_ = std::string(4, '\0');
};

/// Reads a received packet. Missing values read as zero or "", after which `isWhole` returns false.
class PacketReader {
public:
    explicit PacketReader(std::string_view bytes) : rest_(bytes) {}

    std::uint8_t number8() { return std::uint8_t(take(1)); }
    std::uint32_t number() { return std::uint32_t(take(4)); }
    std::uint64_t number64() { return take(8); }
    std::string_view text() {
        const auto size = number();
        if (size > rest_.size()) isWhole_ = false;
        const auto value = isWhole_ ? rest_.substr(0, size) : std::string_view{};
        rest_.remove_prefix(value.size());
        return value;
    }
    SftpAttributes attributes();

    bool isAtEnd() const { return rest_.empty(); }
    bool isWhole() const { return isWhole_; }

private:
    std::uint64_t take(std::size_t size);

    std::string_view rest_;
    bool isWhole_ = true;
};

} // namespace qlpipe
