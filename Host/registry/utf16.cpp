#include "Host/registry/utf16.h"
#include "Basic/utf8.h"

namespace host {
namespace {

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

char32_t unitAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]) | static_cast<char32_t>(static_cast<unsigned char>(bytes[at + 1]))
                                                       << 8;
}

void appendUnit(std::string& bytes, char32_t unit) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
}

} // namespace

std::optional<std::string> utf8FromUtf16Bytes(std::string_view bytes) {
    if (bytes.size() % 2 != 0) return std::nullopt;
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at < bytes.size(); at += 2) {
        auto character = unitAt(bytes, at);
        if (isHighSurrogate(character)) {
            at += 2;
            if (at == bytes.size() || !isLowSurrogate(unitAt(bytes, at))) return std::nullopt;
            character = 0x10000 + ((character - 0xD800) << 10) + (unitAt(bytes, at) - 0xDC00);
        } else if (isLowSurrogate(character))
            return std::nullopt;
        basic::appendCharacter(text, character);
    }
    return text;
}

std::optional<std::string> utf16BytesFromUtf8(std::string_view text) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto character = basic::nextCharacter(text, at);
        if (character == basic::kNoCharacter) return std::nullopt;
        if (character < 0x10000) {
            appendUnit(bytes, character);
        } else {
            appendUnit(bytes, 0xD800 + ((character - 0x10000) >> 10));
            appendUnit(bytes, 0xDC00 + ((character - 0x10000) & 0x3FF));
        }
    }
    return bytes;
}

std::size_t validUtf8Length(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const auto start = at;
        if (basic::nextCharacter(text, at) == basic::kNoCharacter) return start;
    }
    return text.size();
}

} // namespace host
