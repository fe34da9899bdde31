#include "Components/QLPipe/package/zip_headers.h"
#include <optional>
#include <string_view>

namespace qlpipe {
namespace {

constexpr std::string_view kLocal{"PK\3\4"}, kCentral{"PK\1\2"};
constexpr std::size_t kLocalBytes = 30, kCentralBytes = 46, kCommonBytes = 24;
/// Where the fields begin that both headers have, from the required version to the length of the name.
constexpr std::size_t kLocalCommon = 4, kCentralCommon = 6;
constexpr std::size_t kPackedSize = 14, kNameLength = 22, kExtraLength = 24, kCommentLength = 26, kOffset = 42;
/// Marks a number that an extra field holds.
constexpr std::uint32_t kElsewhere = 0xFFFFFFFF;

std::uint32_t number(std::string_view bytes, std::size_t at, std::size_t length) {
    std::uint32_t value = 0;
    while (length-- > 0) value = value << 8 | static_cast<unsigned char>(bytes[at + length]);
    return value;
}

struct Header {
    std::string bytes, common, name;
    std::uint64_t at = 0;
};

class HeaderReader {
public:
    explicit HeaderReader(std::istream& archive) : archive_(archive) {}

    std::optional<Header> local() { return header(kLocal, kLocalBytes, kLocalCommon, 0); }
    std::optional<Header> central() { return header(kCentral, kCentralBytes, kCentralCommon, kCommentLength); }
    void skip(std::int64_t bytes) { at_ += std::uint64_t(bytes); }

private:
    std::optional<Header> header(std::string_view signature, std::size_t size, std::size_t common,
                                 std::size_t commentLength) {
        Header header;
        header.at = at_;
        header.bytes = read(size);
        if (!header.bytes.starts_with(signature)) return {};
        header.common = header.bytes.substr(common, kCommonBytes);
        header.name = read(number(header.common, kNameLength, 2));
        at_ += number(header.bytes, common + kExtraLength, 2);
        if (commentLength > 0) at_ += number(header.bytes, common + commentLength, 2);
        return header;
    }
    /// Returns fewer bytes at the end of the archive.
    std::string read(std::size_t size) {
        std::string bytes(size, '\0');
        archive_.clear();
        archive_.seekg(std::streamoff(at_));
        archive_.read(bytes.data(), std::streamsize(size));
        bytes.resize(std::size_t(archive_.gcount()));
        at_ += size;
        return bytes;
    }

    std::istream& archive_;
    std::uint64_t at_ = 0;
};

bool sizesAreElsewhere(const Header& header) {
    return number(header.common, kPackedSize, 4) == kElsewhere ||
           number(header.common, kPackedSize + 4, 4) == kElsewhere;
}

/// Sizes of 4 GB and more are in extra fields, which the headers need not have both.
bool agree(const Header& local, const Header& central) {
    const auto offset = number(central.bytes, kOffset, 4);
    if (local.name != central.name || (offset != local.at && offset != kElsewhere)) return false;
    if (!sizesAreElsewhere(local) && !sizesAreElsewhere(central)) return local.common == central.common;
    return local.common.substr(0, kPackedSize) == central.common.substr(0, kPackedSize);
}

} // namespace

bool headersAgree(std::istream& archive, const std::vector<ZipEntry>& entries) {
    HeaderReader reader{archive};
    std::vector<Header> locals;
    for (const auto& entry : entries) {
        const auto local = reader.local();
        if (!local || local->name != entry.name) return false;
        locals.push_back(*local);
        reader.skip(entry.packedSize);
    }
    for (const auto& local : locals)
        if (const auto central = reader.central(); !central || !agree(local, *central)) return false;
    return true;
}

} // namespace qlpipe
