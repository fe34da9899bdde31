#include "Basic/utf8.h"
#include <cstdint>
#include <cstring>

namespace basic {

namespace {

/// The length of a sequence by its first byte; 0 for a byte that cannot start one.
unsigned lengthOf(unsigned char first) noexcept {
    if (first < 0x80) return 1;
    if (first < 0xC2 || first > 0xF4) return 0;
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

/// Whether a character of two bytes or more is not a surrogate and does not fit into fewer bytes.
bool isWellFormed(char32_t character, unsigned length) noexcept {
    if (length == 2) return true;
    if (length == 3) return character >= 0x800 && (character < 0xD800 || character > 0xDFFF);
    return character >= 0x10000 && character <= 0x10FFFF;
}

} // namespace

char32_t nextCharacter(std::string_view text, std::size_t& at) noexcept {
    const auto first = static_cast<unsigned char>(text[at]);
    const unsigned length = lengthOf(first);
    const std::size_t begin = at++;
    if (length == 1) return first;
    if (length == 0 || text.size() - begin < length) return kNoCharacter;
    char32_t character = first & (0x7FU >> length);
    for (unsigned i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[begin + i]);
        if ((byte & 0xC0) != 0x80) return kNoCharacter;
        character = character << 6 | (byte & 0x3F);
    }
    if (!isWellFormed(character, length)) return kNoCharacter;
    at = begin + length;
    return character;
}

void appendCharacter(std::string& text, char32_t character) {
    const auto continuation = [&](unsigned shift) { text += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) return void(text += static_cast<char>(character));
    if (character < 0x800)
        text += static_cast<char>(0xC0 | character >> 6);
    else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | character >> 12);
        continuation(6);
    } else {
        text += static_cast<char>(0xF0 | character >> 18);
        continuation(12);
        continuation(6);
    }
    continuation(0);
}

std::size_t asciiRun(std::string_view text, std::size_t at) noexcept {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::size_t end = at;
    for (std::uint64_t word; end + sizeof word <= text.size(); end += sizeof word) {
        std::memcpy(&word, text.data() + end, sizeof word);
        if (word & kHighBits) break;
    }
    while (end < text.size() && static_cast<unsigned char>(text[end]) < 0x80) ++end;
    return end - at;
}

} // namespace basic
