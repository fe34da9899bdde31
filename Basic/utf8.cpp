#include "Basic/utf8.h"
#include <cstdint>
#include <cstring>
#include <unicode/utf8.h>

namespace basic {

char32_t nextCharacter(std::string_view text, std::size_t& at) noexcept {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const std::size_t first = at;
    UChar32 c;
    U8_NEXT(bytes, at, text.size(), c);
    if (c >= 0) return static_cast<char32_t>(c);
    at = first + 1;
    return kNoCharacter;
}

void appendCharacter(std::string& text, char32_t character) {
    char bytes[U8_MAX_LENGTH];
    std::size_t length = 0;
    U8_APPEND_UNSAFE(bytes, length, character);
    text.append(bytes, length);
}

std::size_t asciiRun(std::string_view text, std::size_t at) noexcept {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::size_t end = at;
    for (std::uint64_t word; end + sizeof word <= text.size(); end += sizeof word) {
        std::memcpy(&word, text.data() + end, sizeof word);
        if (word & kHighBits) break;
    }
    while (end < text.size() && static_cast<unsigned char>(text[end]) < 0x80) ++end;
    return end - at;
}

} // namespace basic
