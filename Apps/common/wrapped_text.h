#pragma once
#include <algorithm>
#include <string>
#include <string_view>

namespace apps {

/// Wraps the words into lines of at most `width` characters; a longer word gets its own line.
inline std::string wrapped(std::string_view text, std::size_t width) {
    const auto lengthOf = [](std::string_view word) { // characters, not bytes
        return std::size_t(std::count_if(word.begin(), word.end(), [](char c) { return (c & 0xC0) != 0x80; }));
    };
    std::string lines;
    std::size_t used = 0;
    for (std::size_t at = 0; at < text.size();) {
        const auto end = std::min(text.find(' ', at), text.size());
        const auto word = text.substr(at, end - at);
        at = end + 1;
        const auto length = lengthOf(word);
        const bool fits = used + 1 + length <= width;
        if (used > 0) lines += fits ? ' ' : '\n';
        used = used > 0 && fits ? used + 1 + length : length;
        lines += word;
    }
    return lines;
}

} // namespace apps
