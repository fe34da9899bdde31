#include "Basic/case_folding.h"
#include "Basic/tables/character_table.h"
#include "Basic/utf8.h"
#include <cstdint>

namespace basic {

namespace {

constexpr char32_t kBeyondCharacters = 0x110000;

/// The next character, folded. A byte that is not part of a character is returned as a value above all characters.
char32_t nextFolded(std::string_view text, std::size_t& at) noexcept {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x80) return ++at, byte >= 'A' && byte <= 'Z' ? byte + 0x20U : byte;
    const char32_t character = nextCharacter(text, at);
    return character == kNoCharacter ? kBeyondCharacters + byte : foldCharacter(character);
}

} // namespace

char32_t foldCharacter(char32_t character) noexcept { return folded(character); }

std::string foldCase(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = nextFolded(text, at);
        if (character < 0x80)
            folded += static_cast<char>(character);
        else if (character >= kBeyondCharacters)
            folded += text[at - 1];
        else
            appendCharacter(folded, character);
    }
    return folded;
}

std::weak_ordering compareNoCase(std::string_view a, std::string_view b) noexcept {
    std::size_t atA = 0, atB = 0;
    while (atA < a.size() && atB < b.size()) {
        const char32_t ofA = nextFolded(a, atA), ofB = nextFolded(b, atB);
        if (ofA != ofB) return ofA <=> ofB;
    }
    return (atA < a.size()) <=> (atB < b.size());
}

bool equalNoCase(std::string_view a, std::string_view b) noexcept { return compareNoCase(a, b) == 0; }

bool startsWithNoCase(std::string_view text, std::string_view beginning) noexcept {
    std::size_t at = 0, atBeginning = 0;
    while (atBeginning < beginning.size()) {
        if (at == text.size() || nextFolded(text, at) != nextFolded(beginning, atBeginning)) return false;
    }
    return true;
}

std::size_t NoCaseHash::operator()(std::string_view text) const noexcept {
    std::uint64_t hash = 0xCBF29CE484222325; // FNV-1a, a character a step
    for (std::size_t at = 0; at < text.size();) hash = (hash ^ nextFolded(text, at)) * 0x100000001B3;
    return hash ^ (hash >> 32);
}

} // namespace basic
