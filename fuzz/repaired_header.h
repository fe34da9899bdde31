#pragma once
// Images for fuzz targets.
#include "Components/Image/image_bytes.h"
#include "Components/Image/image_format.h"
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace fuzz {

inline void require(bool holds) {
    if (!holds) std::abort();
}

/// Corrects length and checksum; otherwise the rest would hardly be reached.
inline std::string withHeader(std::string bytes) {
    if (bytes.size() < image::kHeaderSize) return bytes;
    image::Writer header;
    header.u32(std::uint32_t(bytes.size()));
    header.u32(image::crc32(std::string_view(bytes).substr(image::kHeaderSize)));
    return bytes.replace(8, header.bytes().size(), header.bytes());
}

} // namespace fuzz
