#pragma once
// Names as 8-byte words with ASCII letters folded, for hashing names and finding keywords.
#include <cstdint>
#include <cstring>

namespace qltoolkit {

/// Sets bit 5 of each byte. This folds ASCII letters, keeps digits, and keeps all characters of names distinct.
inline constexpr std::uint64_t kFoldMask = 0x2020202020202020u;

/// Returns up to 8 folded bytes from `at`; bytes beyond `length` are 0. Always reads 8 bytes.
inline std::uint64_t foldedWord(const char* at, std::uint32_t length) {
    std::uint64_t word;
    std::memcpy(&word, at, sizeof word);
    word |= kFoldMask;
    return length >= 8 ? word : word & ((std::uint64_t{1} << (length * 8)) - 1);
}

inline constexpr std::uint64_t mixWord(std::uint64_t hash, std::uint64_t word) {
    hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
    return hash ^ (hash >> 29);
}

} // namespace qltoolkit
