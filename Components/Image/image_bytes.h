#pragma once
// Little-endian numbers and strings of the image container.
#include "Basic/runtime_error.h"
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace image {

inline constexpr int kInvalidFileFormat = 321;

/// Raises error 321 for bytes that cannot be read.
[[noreturn]] void imageIsDamaged(const std::string& reason);
/// Raises error 321 for an image that cannot be written.
[[noreturn]] void imageIsRefused(const std::string& sentence);

/// CRC-32 as used by zip and PNG (polynomial 0xEDB88320, inverted).
std::uint32_t crc32(std::string_view bytes);

/// Signed numbers with the sign in the lowest bit, so that small ones in both directions are short.
constexpr std::uint32_t withSignLast(std::uint32_t number) { return number << 1 ^ (0U - (number >> 31)); }
constexpr std::uint32_t withSignFirst(std::uint32_t value) { return value >> 1 ^ (0U - (value & 1)); }

class Writer {
public:
    void u8(std::uint8_t value) { bytes_ += char(value); }
    void u16(std::uint16_t value);
    void u32(std::uint32_t value);
    /// 7 bits a byte, the lowest first; the highest bit of all but the last byte is set.
    void variable(std::uint32_t value);
    void raw(std::string_view bytes) { bytes_ += bytes; }
    void reserve(std::size_t bytes) { bytes_.reserve(bytes); }
    const std::string& bytes() const& { return bytes_; }
    std::string bytes() && { return std::move(bytes_); }

private:
    std::string bytes_;
};

/// Reads bytes. Reading past the end raises error 321.
class Reader {
public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {}
    std::uint8_t u8();
    std::uint16_t u16();
    std::uint32_t u32();
    std::uint32_t variable();
    std::string_view raw(std::size_t length);
    /// Reads a count of items that take at least `smallest` bytes each. An impossible count raises error 321, so that
    /// it is never used for an allocation.
    std::uint32_t count(std::size_t smallest);
    std::string_view rest() const { return rest_; }
    bool atEnd() const { return rest_.empty(); }

private:
    std::string_view rest_;
};

/// The string table: distinct strings, identified by number.
class Strings {
public:
    std::uint32_t numberOf(const std::string& text);
    void write(Writer& writer) const;

private:
    std::unordered_map<std::string, std::uint32_t> numbers_;
    std::vector<std::string> texts_;
};

} // namespace image
