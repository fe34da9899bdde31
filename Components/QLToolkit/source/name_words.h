#pragma once
// Text as words of 8 bytes, the first byte lowest: for the ends of names, their hashes, and finding keywords.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace qltoolkit {

inline constexpr std::uint32_t kWordBytes = 8;

constexpr std::uint64_t everyByte(unsigned byte) { return 0x0101010101010101u * byte; }

/// Sets bit 5 of each byte. This folds ASCII letters, keeps digits, and keeps all characters of names distinct.
inline constexpr std::uint64_t kFoldMask = everyByte(0x20);

/// Always reads 8 bytes.
inline std::uint64_t wordAt(const char* at) {
    std::uint64_t word;
    std::memcpy(&word, at, sizeof word);
    if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
    return word;
}

/// Returns the index of the first byte that is not 0, or 8.
constexpr std::uint32_t zeroBytes(std::uint64_t word) { return static_cast<std::uint32_t>(std::countr_zero(word)) / 8; }

/// kFirstBytes[n] has all bits of the first n bytes.
inline constexpr std::uint64_t kFirstBytes[] = {
    0, 0xFF, 0xFFFF, 0xFFFFFF, 0xFFFFFFFF, 0xFFFFFFFFFF, 0xFFFFFFFFFFFF, 0xFFFFFFFFFFFFFF, ~std::uint64_t{0}};

/// Returns up to 8 folded bytes from `at`; bytes beyond `length` are 0. Always reads 8 bytes.
inline std::uint64_t foldedWord(const char* at, std::uint32_t length) {
    return (wordAt(at) | kFoldMask) & kFirstBytes[std::min(length, kWordBytes)];
}

constexpr std::uint64_t mixWord(std::uint64_t hash, std::uint64_t word) {
    hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
    return hash ^ (hash >> 29);
}

/// The most bytes of a name that is its own key.
inline constexpr std::uint32_t kShortName = 7;

constexpr std::uint64_t longKey(std::uint64_t hash) { return hash << 8 | 1; }

/// Returns a number for a name, regardless of the case of ASCII letters: for a short name its folded bytes, so that no
/// other name has its key, and otherwise a hash, whose lowest byte is no character of a name.
inline std::uint64_t longNameKey(const char* name, std::uint32_t length) {
    std::uint64_t hash = length;
    for (std::uint32_t at = 0; at < length; at += kWordBytes) hash = mixWord(hash, foldedWord(name + at, length - at));
    return longKey(hash);
}
inline std::uint64_t nameKey(const char* name, std::uint32_t length) {
    return length <= kShortName ? foldedWord(name, length) : longNameKey(name, length);
}
constexpr bool isShortKey(std::uint64_t key) { return (key & 0xFF) > 1; }

/// Whether two names of this length are the same, regardless of the case of ASCII letters.
inline bool sameName(const char* a, const char* b, std::uint32_t length) {
    for (std::uint32_t at = 0; at < length; at += kWordBytes)
        if (foldedWord(a + at, length - at) != foldedWord(b + at, length - at)) return false;
    return true;
}

} // namespace qltoolkit
