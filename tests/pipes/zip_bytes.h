#pragma once
// Writes zip archives byte by byte, including invalid ones.
#include "Components/Image/image_bytes.h"
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace test {

struct ZipEntry {
    static constexpr std::uint16_t kStored = 0, kDeflated = 8;

    std::string name, packed;
    std::uint16_t method = kStored;
    /// The unpacked size in the headers. Default: the size of `packed`.
    std::optional<std::uint32_t> size;
};

inline void writeZipHeader(image::Writer& to, const ZipEntry& entry) {
    to.u16(20); // version needed
    to.u16(0);
    to.u16(entry.method);
    to.u16(0);
    to.u16(33); // 1980-01-01
    to.u32(image::crc32(entry.packed));
    to.u32(std::uint32_t(entry.packed.size()));
    to.u32(entry.size.value_or(std::uint32_t(entry.packed.size())));
    to.u16(std::uint16_t(entry.name.size()));
    to.u16(0);
}

inline std::string zipOf(const std::vector<ZipEntry>& entries) {
    image::Writer bytes, directory;
    for (const auto& entry : entries) {
        const auto offset = std::uint32_t(bytes.bytes().size());
        bytes.raw("PK\3\4");
        writeZipHeader(bytes, entry);
        bytes.raw(entry.name);
        bytes.raw(entry.packed);
        directory.raw("PK\1\2");
        directory.u16(20); // version made by
        writeZipHeader(directory, entry);
        for (int i = 0; i < 3; ++i) directory.u16(0); // comment, disk, internal attributes
        directory.u32(0);
        directory.u32(offset);
        directory.raw(entry.name);
    }
    const auto start = std::uint32_t(bytes.bytes().size());
    bytes.raw(directory.bytes());
    bytes.raw("PK\5\6");
    bytes.u32(0);
    bytes.u16(std::uint16_t(entries.size()));
    bytes.u16(std::uint16_t(entries.size()));
    bytes.u32(std::uint32_t(directory.bytes().size()));
    bytes.u32(start);
    bytes.u16(0);
    return bytes.bytes();
}

/// Returns `count` * 258 + 1 zeros in deflate format, about 1.5 bytes per 258.
inline std::string deflatedZeros(std::size_t count) {
    std::string bits = "110"
                       "00110000"; // the last block, fixed codes; one zero
    for (std::size_t i = 0; i < count; ++i)
        bits += "11000101"
                "00000"; // 258 copies of the previous byte
    bits += "0000000";
    std::string bytes((bits.size() + 7) / 8, '\0');
    for (std::size_t i = 0; i < bits.size(); ++i)
        if (bits[i] == '1') bytes[i / 8] = char(bytes[i / 8] | 1 << (i % 8));
    return bytes;
}

} // namespace test
