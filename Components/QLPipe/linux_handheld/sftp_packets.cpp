#include "Components/QLPipe/linux_handheld/sftp_packets.h"

namespace qlpipe {

namespace {

enum AttributeFlag : std::uint32_t {
    kHasSize = 1,
    kHasOwner = 2,
    kHasPermissions = 4,
    kHasTimes = 8,
    kHasExtensions = 0x80000000,
};

} // namespace

std::uint64_t PacketReader::take(std::size_t size) {
    if (rest_.size() < size) isWhole_ = false;
    if (!isWhole_) return 0;
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < size; ++i) value = value << 8 | std::uint8_t(rest_[i]);
    rest_.remove_prefix(size);
    return value;
}

SftpAttributes PacketReader::attributes() {
    SftpAttributes read;
    const auto flags = number();
    if (flags & kHasSize) read.size = number64();
    if (flags & kHasOwner) {
        read.owner = number();
        number(); // its group
    }
    if (flags & kHasPermissions) read.permissions = number();
    if (flags & kHasTimes) take(8);
    if (flags & kHasExtensions)
        for (auto count = number(); count > 0 && isWhole_; --count) text(), text();
    return read;
}

} // namespace qlpipe
