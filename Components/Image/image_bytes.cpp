#include "Components/Image/image_bytes.h"

namespace image {

namespace {

constexpr std::array<std::uint32_t, 256> makeCrcTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t c = i;
        for (int bit = 0; bit < 8; ++bit) c = (c & 1) ? 0xEDB88320U ^ (c >> 1) : c >> 1;
        table[i] = c;
    }
    return table;
}
constexpr auto kCrcTable = makeCrcTable();

} // namespace

void imageIsDamaged(const std::string& reason) {
    throw basic::RuntimeError(kInvalidFileFormat, "The compiled file is damaged: " + reason + ".", "QLToolkit");
}

std::uint32_t crc32(std::string_view bytes) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const unsigned char byte : bytes) crc = kCrcTable[(crc ^ byte) & 0xFF] ^ (crc >> 8);
    return ~crc;
}

void Writer::u16(std::uint16_t value) {
    u8(std::uint8_t(value));
    u8(std::uint8_t(value >> 8));
}

void Writer::u32(std::uint32_t value) {
    u16(std::uint16_t(value));
    u16(std::uint16_t(value >> 16));
}

std::string_view Reader::raw(std::size_t length) {
    if (length > rest_.size()) imageIsDamaged("it ends too early");
    const auto bytes = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return bytes;
}

std::uint8_t Reader::u8() { return std::uint8_t(raw(1)[0]); }

std::uint16_t Reader::u16() {
    const std::uint16_t low = u8();
    return std::uint16_t(low | (u8() << 8));
}

std::uint32_t Reader::u32() {
    const std::uint32_t low = u16();
    return low | (std::uint32_t(u16()) << 16);
}

std::uint32_t Reader::count(std::size_t smallest) {
    const std::uint32_t value = u32();
    if (value > rest_.size() / smallest) imageIsDamaged("a count is larger than the file");
    return value;
}

std::uint32_t Strings::numberOf(const std::string& text) {
    const auto [place, isNew] = numbers_.emplace(text, std::uint32_t(texts_.size()));
    if (isNew) texts_.push_back(text);
    return place->second;
}

void Strings::write(Writer& writer) const {
    writer.u32(std::uint32_t(texts_.size()));
    for (const auto& text : texts_) {
        writer.u32(std::uint32_t(text.size()));
        writer.raw(text);
    }
}

} // namespace image
