#pragma once
// Finds keywords. Inline, because the lexer does this for every word.
#include "Components/QLToolkit/lexer/keywords.h"
#include "Components/QLToolkit/source/name_words.h"
#include <algorithm>
#include <array>

namespace qltoolkit {

namespace keyword_table {

struct KeywordRow {
    std::string_view text;
    basic::VbWordKind kind;
};

// Filled at compile time from the same table as basic::vbWords(), which is not constexpr.
inline constexpr auto kKeywords = [] {
    constexpr KeywordRow rows[] = {
#define VB_WORD(word, kind, asName) {#word, basic::VbWordKind::kind},
#include "Basic/vb_words.def"
    };
    std::array<KeywordRow, static_cast<std::size_t>(kLastKeyword) + 1> keywords{};
    for (std::size_t i = 1; i < keywords.size(); ++i) keywords[i] = rows[i - 1];
    return keywords;
}();
static_assert(std::all_of(kKeywords.begin(), kKeywords.end(),
                          [](const KeywordRow& row) { return row.text.size() <= 2 * kWordBytes; }));

constexpr basic::VbWordKind kindOf(Keyword k) { return kKeywords[static_cast<std::size_t>(k)].kind; }
constexpr Keyword next(Keyword k) { return static_cast<Keyword>(static_cast<int>(k) + 1); }
static_assert(kindOf(kLastReserved) == basic::VbWordKind::Reserved &&
              kindOf(next(kLastReserved)) == basic::VbWordKind::Type);
static_assert(kindOf(kLastType) == basic::VbWordKind::Type && kindOf(next(kLastType)) == basic::VbWordKind::Contextual);
static_assert(kindOf(kLastKeyword) == basic::VbWordKind::Contextual);

// The folded text, as foldedWord reads it.
struct Words {
    std::uint64_t first = 0, second = 0;
};

constexpr Words wordsOf(std::string_view text) {
    Words words;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = std::uint64_t(static_cast<unsigned char>(text[i]) | 0x20u);
        (i < kWordBytes ? words.first : words.second) |= byte << (i % kWordBytes * 8);
    }
    return words;
}

constexpr std::uint64_t keyOf(std::string_view text) {
    const Words words = wordsOf(text);
    if (text.size() <= kShortName) return words.first;
    const auto hash = mixWord(text.size(), words.first);
    return longKey(text.size() <= kWordBytes ? hash : mixWord(hash, words.second));
}

inline constexpr auto kKeys = [] {
    std::array<std::uint64_t, kKeywords.size()> keys{};
    for (std::size_t i = 1; i < keys.size(); ++i) keys[i] = keyOf(kKeywords[i].text);
    return keys;
}();

inline constexpr auto kWords = [] {
    std::array<Words, kKeywords.size()> words{};
    for (std::size_t i = 1; i < words.size(); ++i) words[i] = wordsOf(kKeywords[i].text);
    return words;
}();

inline constexpr int kSlotBits = 11;
using Table = std::array<Keyword, std::size_t{1} << kSlotBits>;

constexpr std::size_t slotOf(std::uint64_t key, std::uint64_t factor) { return key * factor >> (64 - kSlotBits); }

// Returns false if two keywords have the same slot.
constexpr bool fill(Table& table, std::uint64_t factor) {
    table = {};
    for (std::size_t i = 1; i < kKeys.size(); ++i) {
        auto& keyword = table[slotOf(kKeys[i], factor)];
        if (keyword != Keyword::None) return false;
        keyword = static_cast<Keyword>(i);
    }
    return true;
}

// A factor with which each keyword has its own slot, so that one comparison decides.
inline constexpr std::uint64_t kFactor = [] {
    Table table{};
    std::uint64_t factor = 0x9E3779B97F4A7C15u;
    while (!fill(table, factor)) factor = factor * 6364136223846793005u + 2;
    return factor;
}();

inline constexpr Table kTable = [] {
    Table table{};
    fill(table, kFactor);
    return table;
}();

} // namespace keyword_table

/// Returns the keyword with this key, or None. Other long names may have the same key as a keyword.
inline Keyword keywordOfKey(std::uint64_t key) {
    using namespace keyword_table;
    const Keyword keyword = kTable[slotOf(key, kFactor)];
    // Without a branch, which would often be mispredicted.
    const int same = kKeys[static_cast<std::size_t>(keyword)] == key;
    return static_cast<Keyword>(static_cast<int>(keyword) & -same);
}

} // namespace qltoolkit
