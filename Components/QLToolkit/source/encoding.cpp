#include "Components/QLToolkit/source/encoding.h"
#include "Basic/utf8.h"
#include <cstring>

namespace qltoolkit {

bool isWideBlank(int codePage, const char* text) {
    const auto is = [text](const char* bytes) { return std::memcmp(text, bytes, 2) == 0; };
    switch (codePage) {
    case 932: return is("\x81\x40");
    case 936:
    case 949: return is("\xA1\xA1");
    case 950: return is("\xA1\x40");
    case kUtf8Page: return is("\xC2\xA0");
    default: return *text == '\xA0';
    }
}

unsigned wideBlankBytes(int codePage) {
    return codePage == kUtf8Page || basic::CodePage::isDoubleByte(codePage) ? 2 : 1;
}

bool hasTypographicMark(std::string_view utf8) {
    for (std::size_t at = basic::asciiRun(utf8, 0); at < utf8.size(); at += basic::asciiRun(utf8, at)) {
        const char32_t c = basic::nextCharacter(utf8, at);
        const bool general = c == 0xA0 || c == 0xAB || c == 0xBB || (c >= 0x2000 && c <= 0x206F);
        const bool eastAsian = c >= 0x3000 && c <= 0x303F && c != 0x3005 && c != 0x3007;
        const bool wide = (c >= 0xFF01 && c <= 0xFF0F) || (c >= 0xFF1A && c <= 0xFF1F) || (c >= 0xFF5B && c <= 0xFF65);
        if (general || eastAsian || wide) return true;
    }
    return false;
}

} // namespace qltoolkit
