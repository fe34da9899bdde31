#include "Components/QLToolkit/lexer/keywords.h"
#include "Components/QLToolkit/source/name_words.h"
#include <array>

namespace qltoolkit {

namespace {

struct KeywordRow {
    std::string_view text;
    basic::VbWordKind kind;
};

// Filled at compile time from the same table as basic::vbWords(), which is not constexpr.
constexpr auto kKeywords = [] {
    constexpr KeywordRow rows[] = {
#define VB_WORD(word, kind, asName) {#word, basic::VbWordKind::kind},
#include "Basic/vb_words.def"
    };
    std::array<KeywordRow, static_cast<std::size_t>(kLastKeyword) + 1> keywords{};
    for (std::size_t i = 1; i < keywords.size(); ++i) keywords[i] = rows[i - 1];
    return keywords;
}();

constexpr basic::VbWordKind kindOf(Keyword k) { return kKeywords[static_cast<std::size_t>(k)].kind; }
constexpr Keyword next(Keyword k) { return static_cast<Keyword>(static_cast<int>(k) + 1); }
static_assert(kindOf(kLastReserved) == basic::VbWordKind::Reserved &&
              kindOf(next(kLastReserved)) == basic::VbWordKind::Type);
static_assert(kindOf(kLastType) == basic::VbWordKind::Type && kindOf(next(kLastType)) == basic::VbWordKind::Contextual);
static_assert(kindOf(kLastKeyword) == basic::VbWordKind::Contextual);

constexpr std::size_t kLongestWord = 10;
constexpr std::size_t kSlots = 512;

struct WordKey {
    std::uint64_t first = 0;
    std::uint16_t rest = 0;
    Keyword keyword = Keyword::None;
};

constexpr std::uint64_t foldBytes(std::string_view s) {
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < s.size(); ++i)
        word |= std::uint64_t(static_cast<unsigned char>(s[i]) | 0x20u) << (8 * i);
    return word;
}

constexpr std::size_t slotOf(std::uint64_t first, std::uint32_t length) {
    return (first * 0x9E3779B97F4A7C15u >> 55) ^ length;
}

constexpr auto kTable = [] {
    std::array<WordKey, kSlots> table{};
    for (std::size_t i = 1; i < kKeywords.size(); ++i) {
        const auto word = kKeywords[i].text;
        WordKey key{foldBytes(word.substr(0, 8)), 0, static_cast<Keyword>(i)};
        if (word.size() > 8) key.rest = static_cast<std::uint16_t>(foldBytes(word.substr(8)));
        auto slot = slotOf(key.first, static_cast<std::uint32_t>(word.size())) % kSlots;
        while (table[slot].keyword != Keyword::None) slot = (slot + 1) % kSlots;
        table[slot] = key;
    }
    return table;
}();

// The lengths of the keywords with a given first letter, as bits. This alone rules out most names.
constexpr auto kLengths = [] {
    std::array<std::uint16_t, 32> table{};
    for (const auto& [word, kind] : kKeywords)
        if (!word.empty()) table[word[0] & 31] |= static_cast<std::uint16_t>(1u << word.size());
    return table;
}();

} // namespace

Keyword keywordOf(const char* name, std::uint32_t length) {
    if (length > kLongestWord || (kLengths[*name & 31] >> length & 1) == 0) return Keyword::None;
    const auto first = foldedWord(name, length);
    const auto rest = length > 8 ? static_cast<std::uint16_t>(foldedWord(name + 8, length - 8)) : std::uint16_t{0};
    for (std::size_t slot = slotOf(first, length) % kSlots;; slot = (slot + 1) % kSlots) {
        const WordKey& key = kTable[slot];
        if (key.keyword == Keyword::None) return Keyword::None;
        if (key.first == first && key.rest == rest) return key.keyword;
    }
}

std::string_view spelling(Keyword k) { return kKeywords[static_cast<std::size_t>(k)].text; }

} // namespace qltoolkit
