#include "Components/QLToolkit/lexer/name_characters.h"
#include <algorithm>
#include <span>

namespace qltoolkit {

namespace {

struct Range {
    unsigned first, last;
};

bool isIn(std::span<const Range> ranges, unsigned code) {
    return std::ranges::any_of(ranges, [&](const Range& each) { return code >= each.first && code <= each.last; });
}

// Signs; the rest of the page belongs to names.
constexpr Range kJapaneseSigns[] = {{0x8140, 0x8140}, {0x8143, 0x8151}, {0x815E, 0x8197}};
constexpr Range kJapaneseDigits[] = {{0x824F, 0x8258}};
constexpr Range kJapaneseSingles[] = {{0xA1, 0xDF}};

// The letters of all three pages of Unified Hangul and of GBK beyond the older sets are those with low bytes.
constexpr Range kKoreanLetters[] = {{0xA3C1, 0xA3DA}, {0xA3E1, 0xA3FA}, {0xA4A1, 0xA4FE}};
constexpr Range kKoreanLater[] = {{0xA3B0, 0xA3B9}, {0xA3DF, 0xA3DF}};

constexpr Range kSimplifiedLetters[] = {{0x8140, 0xA0FE}, {0xA1A2, 0xA1AA}, {0xA1AC, 0xA1AD},
                                        {0xA1B2, 0xA1E6}, {0xA1E8, 0xA1EF}, {0xA2B1, 0xA2FC},
                                        {0xA3C1, 0xA3DA}, {0xA3E1, 0xA3FA}, {0xA4A1, 0xFE4F}};
constexpr Range kSimplifiedLater[] = {{0xA3B0, 0xA3B9}, {0xA3DF, 0xA3DF}};

constexpr Range kTraditionalLetters[] = {{0xA2CF, 0xA2FE}, {0xA340, 0xF9DD}};
constexpr Range kTraditionalLater[] = {{0xA1C5, 0xA1C5}, {0xA2AF, 0xA2B8}};

bool isKoreanLetter(unsigned code) {
    const unsigned lead = code >> 8, second = code & 0xFF;
    return lead < 0xA1 || lead > 0xAF || second < 0xA1 || second > 0xFE || isIn(kKoreanLetters, code);
}

} // namespace

bool isNameCharacter(int codePage, unsigned code, bool isFirst) {
    if (code <= 0xFF) return codePage == 932 && isIn(kJapaneseSingles, code);
    if ((code & 0xFF) < 0x40) return false; // no second byte
    switch (codePage) {
    case 932: return !isIn(kJapaneseSigns, code) && !(isFirst && isIn(kJapaneseDigits, code));
    case 936: return isIn(kSimplifiedLetters, code) || (!isFirst && isIn(kSimplifiedLater, code));
    case 949: return isKoreanLetter(code) || (!isFirst && isIn(kKoreanLater, code));
    default: return isIn(kTraditionalLetters, code) || (!isFirst && isIn(kTraditionalLater, code));
    }
}

} // namespace qltoolkit
