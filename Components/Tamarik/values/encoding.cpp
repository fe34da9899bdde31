#include "Components/Tamarik/values/encoding.h"
#include "Basic/utf8.h"

namespace tamarik {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isHigh(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLow(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

} // namespace

std::string toUtf8(std::u16string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        char32_t character = text[at];
        if (isHigh(text[at]) && at + 1 < text.size() && isLow(text[at + 1]))
            character = 0x10000 + ((character - 0xD800) << 10) + (text[++at] - 0xDC00);
        else if (isHigh(text[at]) || isLow(text[at]))
            character = kReplacement;
        basic::appendCharacter(utf8, character);
    }
    return utf8;
}

std::u16string toUtf16(std::string_view utf8) {
    std::u16string text;
    text.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        char32_t character = basic::nextCharacter(utf8, at);
        if (character == basic::kNoCharacter) character = kReplacement;
        if (character < 0x10000) {
            text += static_cast<char16_t>(character);
        } else {
            text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
            text += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        }
    }
    return text;
}

} // namespace tamarik
