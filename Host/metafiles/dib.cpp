#include "Host/metafiles/dib.h"
#include "Host/metafiles/fields.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace host {

namespace {

constexpr std::uint32_t kCoreHeader = 12, kInfoHeader = 40, kLargestHeader = 124;
constexpr std::uint32_t kRuns8 = 1, kRuns4 = 2, kBitFields = 3;
constexpr std::size_t kMostColours = 256;

/// The bytes of the colours after the header.
std::size_t coloursOf(Fields in, std::uint32_t headerSize) {
    if (headerSize == kCoreHeader) {
        in.skip(6); // width, height, planes
        const auto depth = in.u16();
        return depth <= 8 ? (std::size_t(1) << depth) * 3 : 0;
    }
    in.skip(10);
    const auto depth = in.u16();
    const auto compression = in.u32();
    in.skip(12);
    const auto used = in.u32();
    if (headerSize == kInfoHeader && compression == kBitFields) return 3 * sizeof(std::uint32_t);
    if (depth > 8) return 0;
    return std::min<std::size_t>(used != 0 ? used : std::size_t(1) << depth, kMostColours) * sizeof(std::uint32_t);
}

} // namespace

DibParts partsOfDib(std::string_view dib) {
    Fields in(dib);
    const auto headerSize = in.u32();
    const bool isKnown = headerSize == kCoreHeader || (headerSize >= kInfoHeader && headerSize <= kLargestHeader);
    if (!isKnown || headerSize > dib.size()) return {};
    const auto size = headerSize + coloursOf(in, headerSize);
    if (size > dib.size()) return {};
    return {dib.substr(0, size), dib.substr(size)};
}

std::optional<DibSize> sizeOfDib(const DibParts& dib) {
    constexpr std::int32_t kMostSide = 0x7FFF;
    constexpr std::size_t kMostPixelsPerByte = 128; // of runs
    Fields in(dib.header);
    const bool isCore = in.u32() == kCoreHeader;
    const std::int32_t width = isCore ? in.u16() : in.i32(), height = isCore ? in.u16() : in.i32();
    in.skip(2);
    const std::size_t depth = in.u16();
    const auto compression = isCore ? 0 : in.u32();
    if (!in.isWhole() || width <= 0 || height == 0 || compression > kBitFields) return {};
    if (width > kMostSide || height > kMostSide || height < -kMostSide) return {};
    const DibSize size{width, std::abs(height), height < 0};
    const bool hasRuns = compression == kRuns8 || compression == kRuns4;
    const auto most =
        hasRuns ? dib.bits.size() * kMostPixelsPerByte : dib.bits.size() * 8 / std::max<std::size_t>(depth, 1);
    return size.pixels() <= most ? std::optional(size) : std::nullopt;
}

std::string bmpOf(const DibParts& dib) {
    constexpr std::size_t kFileHeaderSize = 14;
    std::string bmp = "BM";
    const auto add = [&bmp](std::size_t number) {
        for (int byte = 0; byte < 4; ++byte) bmp += char(std::uint32_t(number) >> (8 * byte) & 0xFF);
    };
    const auto bitsAt = kFileHeaderSize + dib.header.size();
    add(bitsAt + dib.bits.size());
    add(0);
    add(bitsAt);
    return bmp.append(dib.header).append(dib.bits);
}

} // namespace host
