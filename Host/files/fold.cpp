#include "Host/files/fold.h"
#include <algorithm>
#include <unicode/uchar.h>
#include <unicode/utf8.h>

namespace host {
namespace {

constexpr char asciiLower(char c) noexcept { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; }

bool isAscii(std::string_view text) noexcept {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void appendFolded(std::string& folded, UChar32 character) {
    const auto lower = u_foldCase(character, U_FOLD_CASE_DEFAULT);
    char bytes[U8_MAX_LENGTH];
    int32_t length = 0;
    U8_APPEND_UNSAFE(bytes, length, lower);
    folded.append(bytes, std::size_t(length));
}

} // namespace

bool equalAsciiFolded(std::string_view a, std::string_view b) noexcept {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return asciiLower(x) == asciiLower(y); });
}

std::string foldCase(std::string_view text) {
    std::string folded(text);
    if (isAscii(text)) {
        std::transform(folded.begin(), folded.end(), folded.begin(), asciiLower);
        return folded;
    }
    folded.clear();
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto size = int32_t(text.size());
    for (int32_t at = 0; at < size;) {
        const auto start = at;
        UChar32 character = 0;
        U8_NEXT(bytes, at, size, character);
        if (character < 0)
            folded.append(text.substr(std::size_t(start), std::size_t(at - start)));
        else
            appendFolded(folded, character);
    }
    return folded;
}

std::string_view trimBlanks(std::string_view text) noexcept {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return text.substr(0, 0);
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

} // namespace host
