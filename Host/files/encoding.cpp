#include "Host/files/encoding.h"
#include "Basic/utf8.h"

namespace host {
namespace {

constexpr int kUtf8 = 65001;

bool isDoubleByte(const basic::CodePage& page) noexcept {
    return page.number() == 932 || page.number() == 936 || page.number() == 949 || page.number() == 950;
}

/// The largest character of a UTF-8 text; kNoCharacter if the text is not well-formed.
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
    if (bytes.starts_with(kByteOrderMark)) return basic::CodePage(kUtf8);
    // Two bytes are often valid both as an ideograph of a double-byte page and as a UTF-8 sequence, three bytes rarely.
    const char32_t least = isDoubleByte(usual) ? 0x800 : 0x80;
    const auto largest = largestCharacter(bytes);
    return largest != basic::kNoCharacter && largest >= least ? basic::CodePage(kUtf8) : usual;
}

} // namespace host
