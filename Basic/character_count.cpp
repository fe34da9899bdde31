#include "Basic/character_count.h"
#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace basic {

namespace {

constexpr bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// Returns how many of eight bytes begin a character.
std::size_t beginningsInWord(const char* bytes) {
    std::uint64_t word;
    std::memcpy(&word, bytes, sizeof word);
    const std::uint64_t continuing = (word >> 7) & ~(word >> 6) & 0x0101010101010101;
    return sizeof word - static_cast<std::size_t>(std::popcount(continuing));
}

} // namespace

std::size_t countCharacters(std::string_view text) noexcept {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return !continuesCharacter(byte); }));
}

std::size_t characterOffset(std::string_view text, std::size_t index) noexcept {
    std::size_t at = 0;
    for (; at + 8 <= text.size(); at += 8) {
        const std::size_t beginnings = beginningsInWord(text.data() + at);
        if (beginnings > index) break;
        index -= beginnings;
    }
    for (; at < text.size(); ++at) {
        if (continuesCharacter(text[at])) continue;
        if (index == 0) return at;
        --index;
    }
    return text.size();
}

} // namespace basic
