#pragma once
// Icon files, byte by byte.
#include <cstdint>
#include <string>
#include <vector>

namespace test {

/// Little endian.
inline std::string number(std::uint32_t value, int bytes) {
    std::string text;
    for (; bytes > 0; --bytes, value >>= 8) text += char(value & 0xFF);
    return text;
}

struct IconEntry {
    int width, height, bits;
    int colors = 0, planes = 1;
    std::uint32_t size = 40, offset = 0;
};

/// The beginning of an icon file; `count` replaces the number of images.
inline std::string icon(const std::vector<IconEntry>& images, int count = -1, int type = 1) {
    auto bytes = number(0, 2) + number(std::uint32_t(type), 2) +
                 number(std::uint32_t(count < 0 ? int(images.size()) : count), 2);
    for (const auto& i : images)
        bytes += number(std::uint32_t(i.width), 1) + number(std::uint32_t(i.height), 1) +
                 number(std::uint32_t(i.colors), 1) + number(0, 1) + number(std::uint32_t(i.planes), 2) +
                 number(std::uint32_t(i.bits), 2) + number(i.size, 4) + number(i.offset, 4);
    return bytes;
}

} // namespace test
