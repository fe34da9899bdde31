#include "Host/files/encoding.h"
#include "Basic/utf8.h"

namespace host {
namespace {

constexpr int kUtf8 = 65001;

bool isDoubleByte(const basic::CodePage& page) noexcept {
    return page.number() == 932 || page.number() == 936 || page.number() == 949 || page.number() == 950;
}

/// The largest character of a well-formed UTF-8 text; kNoCharacter for another.
char32_t largestCharacter(std::string_view bytes) noexcept {
    char32_t largest = 0;
    for (std::size_t at = 0; at < bytes.size();) {
        if (const auto ascii = basic::asciiRun(bytes, at)) {
            at += ascii;
            continue;
        }
        const auto character = basic::nextCharacter(bytes, at);
        if (character == basic::kNoCharacter) return character;
        largest = std::max(largest, character);
    }
    return largest;
}

} // namespace

basic::CodePage codePageOf(std::string_view bytes, const basic::CodePage& usual) {
    if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark) return basic::CodePage(kUtf8);
    // A pair of bytes can well be both an ideograph of a double-byte page and a UTF-8 sequence; three rarely are.
    const char32_t least = isDoubleByte(usual) ? 0x800 : 0x80;
    const auto largest = largestCharacter(bytes);
    return largest != basic::kNoCharacter && largest >= least ? basic::CodePage(kUtf8) : usual;
}

} // namespace host
