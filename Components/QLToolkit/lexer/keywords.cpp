#include "Components/QLToolkit/lexer/keywords.h"
#include "Components/QLToolkit/source/name_words.h"
#include <array>

namespace qltoolkit {

namespace {

constexpr std::array<std::string_view, static_cast<std::size_t>(Keyword::Width) + 1> kWords{
    "",        "AddressOf",  "And",      "As",       "ByRef",      "ByVal",     "Call",       "Case",    "Close",
    "Const",   "Declare",    "DefBool",  "DefByte",  "DefCur",     "DefDate",   "DefDbl",     "DefDec",  "DefInt",
    "DefLng",  "DefObj",     "DefSng",   "DefStr",   "DefVar",     "Dim",       "Do",         "Each",    "Else",
    "ElseIf",  "Empty",      "End",      "EndIf",    "Enum",       "Eqv",       "Erase",      "Event",   "Exit",
    "False",   "For",        "Friend",   "Function", "Get",        "Global",    "GoSub",      "GoTo",    "If",
    "Imp",     "Implements", "In",       "Input",    "Is",         "Let",       "Like",       "Lock",    "Loop",
    "LSet",    "Me",         "Mod",      "New",      "Next",       "Not",       "Nothing",    "Null",    "On",
    "Open",    "Option",     "Optional", "Or",       "ParamArray", "Preserve",  "Print",      "Private", "Public",
    "Put",     "RaiseEvent", "ReDim",    "Rem",      "Resume",     "Return",    "RSet",       "Seek",    "Select",
    "Set",     "Shared",     "Static",   "Stop",     "Sub",        "Then",      "To",         "True",    "Type",
    "TypeOf",  "Unlock",     "Until",    "Wend",     "While",      "With",      "WithEvents", "Write",   "Xor",
    "Any",     "Boolean",    "Byte",     "Currency", "Date",       "Double",    "Integer",    "Long",    "Single",
    "String",  "Variant",    "Access",   "Alias",    "Append",     "Attribute", "Base",       "Binary",  "CDecl",
    "Compare", "Database",   "Error",    "Explicit", "Len",        "Lib",       "Line",       "Local",   "Mid",
    "MidB",    "Module",     "Name",     "Object",   "Output",     "Property",  "Random",     "Read",    "Spc",
    "Step",    "Tab",        "Text",     "Width",
};

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
    for (std::size_t i = 1; i < kWords.size(); ++i) {
        const auto word = kWords[i];
        WordKey key{foldBytes(word.substr(0, 8)), 0, static_cast<Keyword>(i)};
        if (word.size() > 8) key.rest = static_cast<std::uint16_t>(foldBytes(word.substr(8)));
        auto slot = slotOf(key.first, static_cast<std::uint32_t>(word.size())) % kSlots;
        while (table[slot].keyword != Keyword::None) slot = (slot + 1) % kSlots;
        table[slot] = key;
    }
    return table;
}();

// Which lengths words with a given first letter have, as bits: most names are told from words by this alone.
constexpr auto kLengths = [] {
    std::array<std::uint16_t, 32> table{};
    for (const auto word : kWords)
        if (!word.empty()) table[word[0] & 31] |= static_cast<std::uint16_t>(1u << word.size());
    return table;
}();

static_assert(kWords.back() == "Width" && kWords[static_cast<std::size_t>(kLastReserved)] == "Xor" &&
              kWords[static_cast<std::size_t>(kLastType)] == "Variant");

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

std::string_view spelling(Keyword k) { return kWords[static_cast<std::size_t>(k)]; }

} // namespace qltoolkit
