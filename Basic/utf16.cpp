#include "Basic/utf16.h"
#include "Basic/utf8.h"

namespace basic {

char32_t nextCharacter(std::u16string_view text, std::size_t& at) noexcept {
    const char32_t unit = text[at++];
    const bool pair = unit >= 0xD800 && unit <= 0xDBFF && at < text.size() && text[at] >= 0xDC00 && text[at] <= 0xDFFF;
    return pair ? 0x10000 + ((unit - 0xD800) << 10) + (text[at++] - 0xDC00U) : unit;
}

void appendCharacter(std::u16string& text, char32_t character) {
    if (character > 0xFFFF) text += static_cast<char16_t>(0xD7C0 + (character >> 10));
    text += static_cast<char16_t>(character > 0xFFFF ? 0xDC00 | (character & 0x3FF) : character);
}

std::u16string toUtf16(std::string_view utf8) {
    std::u16string text;
    text.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const char32_t character = nextCharacter(utf8, at);
        appendCharacter(text, character == kNoCharacter ? 0xFFFD : character);
    }
    return text;
}

std::string toUtf8(std::u16string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = nextCharacter(text, at);
        const bool alone = character >= 0xD800 && character <= 0xDFFF;
        appendCharacter(utf8, alone ? U'?' : character);
    }
    return utf8;
}

std::string asciiOf(std::u16string_view text) {
    std::string ascii;
    ascii.reserve(text.size());
    for (const char16_t unit : text) ascii += unit < 0x80 ? static_cast<char>(unit) : '\x01';
    return ascii;
}

} // namespace basic
