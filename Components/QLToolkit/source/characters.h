#pragma once
// Character classes of bytes.
#include "Components/QLToolkit/source/name_words.h"
#include <array>
#include <cstdint>

namespace qltoolkit {

enum CharClass : std::uint8_t {
    kBlank = 1,
    kNameStart = 2,
    kNamePart = 4,
    kDigit = 8,
    kHexDigit = 16,
    kForeign = 32,
    kTypeMark = 64,    ///< a type character
    kNumberPart = 128, ///< may continue a number after its first digits
};

inline constexpr auto kCharClasses = [] {
    std::array<std::uint8_t, 256> table{};
    for (const unsigned c : {' ', '\t', '\v', '\f', '\x1A'}) table[c] |= kBlank;
    for (unsigned c = '0'; c <= '9'; ++c) table[c] |= kDigit | kNamePart | kHexDigit;
    for (unsigned c = 'a'; c <= 'z'; ++c) table[c] |= kNameStart | kNamePart;
    for (unsigned c = 'A'; c <= 'Z'; ++c) table[c] |= kNameStart | kNamePart;
    for (unsigned c = 'a'; c <= 'f'; ++c) table[c] |= kHexDigit;
    for (unsigned c = 'A'; c <= 'F'; ++c) table[c] |= kHexDigit;
    table['_'] |= kNamePart;
    for (const unsigned c : {'%', '&', '!', '#', '@'}) table[c] |= kTypeMark | kNumberPart;
    table['$'] |= kTypeMark;
    for (const unsigned c : {'.', 'e', 'E', 'd', 'D'}) table[c] |= kNumberPart;
    for (unsigned c = 128; c < 256; ++c) table[c] |= kNameStart | kForeign;
    return table;
}();

inline bool charIs(char c, unsigned classes) { return (kCharClasses[static_cast<unsigned char>(c)] & classes) != 0; }
inline bool isLineEnd(char c) { return c == '\r' || c == '\n'; }

/// Returns the first character that is not a blank. Reads up to 8 bytes beyond it.
inline const char* skipBlanks(const char* p) {
    for (std::uint32_t blanks = kWordBytes; blanks == kWordBytes; p += blanks)
        blanks = zeroBytes(wordAt(p) ^ everyByte(' '));
    while (charIs(*p, kBlank)) ++p; // tabs, and what follows them
    return p;
}

} // namespace qltoolkit
