#pragma once
// A name's bytes as words of 8 with ASCII letters folded: how names are hashed and keywords are found.
#include <cstdint>
#include <cstring>

namespace qltoolkit {

/// Sets bit 5 of each byte: folds ASCII letters, keeps digits, and maps no two characters of names to one.
inline constexpr std::uint64_t kFoldMask = 0x2020202020202020u;

/// Up to 8 bytes from `at`, folded; bytes beyond `length` are 0. Reads 8 bytes in any case.
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
