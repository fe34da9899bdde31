#include "Components/Image/image_bytes.h"

namespace image {

namespace {

constexpr std::size_t kCrcStep = 8;
using CrcTables = std::array<std::array<std::uint32_t, 256>, kCrcStep>;

/// One table for each of the bytes that are added at once.
constexpr CrcTables makeCrcTables() {
    CrcTables tables{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t c = i;
        for (int bit = 0; bit < 8; ++bit) c = (c & 1) ? 0xEDB88320U ^ (c >> 1) : c >> 1;
        tables[0][i] = c;
    }
    for (std::size_t later = 1; later < kCrcStep; ++later)
        for (std::size_t i = 0; i < 256; ++i) {
            const auto before = tables[later - 1][i];
            tables[later][i] = tables[0][before & 0xFF] ^ (before >> 8);
        }
    return tables;
}
constexpr auto kCrcTables = makeCrcTables();

std::uint32_t u32In(std::string_view bytes, std::size_t at) {
    const auto byte = [&](std::size_t i) { return std::uint32_t{static_cast<unsigned char>(bytes[at + i])}; };
    return byte(0) | byte(1) << 8 | byte(2) << 16 | byte(3) << 24;
}

} // namespace

void imageIsDamaged(const std::string& reason) {
    throw basic::RuntimeError(kInvalidFileFormat, "The compiled file is damaged: " + reason + ".", "QLToolkit");
}

void imageIsRefused(const std::string& sentence) {
    throw basic::RuntimeError(kInvalidFileFormat, sentence, "QLToolkit");
}

std::uint32_t crc32(std::string_view bytes) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (; bytes.size() >= kCrcStep; bytes.remove_prefix(kCrcStep)) {
        const auto low = crc ^ u32In(bytes, 0), high = u32In(bytes, 4);
        crc = 0;
        for (std::size_t i = 0; i < 4; ++i)
            crc ^= kCrcTables[7 - i][low >> (8 * i) & 0xFF] ^ kCrcTables[3 - i][high >> (8 * i) & 0xFF];
    }
    for (const unsigned char byte : bytes) crc = kCrcTables[0][(crc ^ byte) & 0xFF] ^ (crc >> 8);
    return ~crc;
}

void Writer::u16(std::uint16_t value) {
    u8(std::uint8_t(value));
    u8(std::uint8_t(value >> 8));
}

void Writer::u32(std::uint32_t value) {
    const std::array bytes{char(value), char(value >> 8), char(value >> 16), char(value >> 24)};
    bytes_.append(bytes.data(), bytes.size());
}

void Writer::variable(std::uint32_t value) {
    for (; value > 0x7F; value >>= 7) u8(std::uint8_t(value | 0x80));
    u8(std::uint8_t(value));
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

std::uint32_t Reader::u32() { return u32In(raw(4), 0); }

std::uint32_t Reader::variable() {
    std::uint64_t value = 0;
    for (int shift = 0; shift <= 28; shift += 7) {
        const auto byte = u8();
        value |= std::uint64_t(byte & 0x7F) << shift;
        if (byte <= 0x7F && value <= 0xFFFFFFFF) return std::uint32_t(value);
    }
    imageIsDamaged("a number is too large");
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
