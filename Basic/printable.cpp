#include "Basic/printable.h"
#include "Basic/utf8.h"
#include <algorithm>
#include <iterator>

namespace basic {
namespace {

struct CharacterRange {
    char32_t first, last;
};
constexpr CharacterRange kUnsafe[] = {
    {0x00, 0x1F},     // controls, with escape
    {0x7F, 0x9F},     // delete, and the controls of 8 bits
    {0x061C, 0x061C}, // direction marks
    {0x200E, 0x200F},
    {0x2028, 0x202E}, // line and paragraph separators, direction overrides
    {0x2066, 0x2069}, // direction isolates
    {kNoCharacter, kNoCharacter},
};

bool isUnsafe(char32_t character) {
    return std::any_of(std::begin(kUnsafe), std::end(kUnsafe), [&](const CharacterRange& range) {
        return character >= range.first && character <= range.last;
    });
}

std::string hexadecimal(char32_t value, int digits) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    while (digits-- > 0) text += kDigits[(value >> (4 * digits)) & 0xF];
    return text;
}

} // namespace

std::string printable(std::string_view text, std::string_view kept) {
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto begin = at;
        const auto character = nextCharacter(text, at);
        if (!isUnsafe(character) || (character < 0x80 && kept.find(char(character)) != std::string_view::npos))
            shown += text.substr(begin, at - begin);
        else if (character == kNoCharacter)
            shown += "\\x" + hexadecimal(static_cast<unsigned char>(text[begin]), 2);
        else
            shown += character == '\n' ? "\\n" : "\\u" + hexadecimal(character, 4);
    }
    return shown;
}

} // namespace basic
