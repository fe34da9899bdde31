// Like fails only with error 93, and its matches agree with a simple reference implementation, in UTF-16 too.
#include "Basic/like.h"
#include "Basic/runtime_error.h"
#include "Basic/utf16.h"
#include "Components/Tamarik/text/letters.h"
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

/// Like for patterns of ASCII characters, ? and *.
bool plainLike(std::string_view text, std::string_view pattern) {
    if (pattern.empty()) return text.empty();
    if (pattern[0] == '*') {
        const bool withoutStar = plainLike(text, pattern.substr(1));
        return withoutStar || (!text.empty() && plainLike(text.substr(1), pattern));
    }
    const bool fits = !text.empty() && (pattern[0] == '?' || pattern[0] == text[0]);
    return fits && plainLike(text.substr(1), pattern.substr(1));
}

bool isPlain(std::string_view text) {
    for (const char c : text) {
        if (c < ' ' || c == '[' || c == '#' || c == 0x7F) return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t cut = input.find('\n');
    if (cut == input.npos || size > 4096) return 0;
    const std::string_view text = input.substr(0, cut), pattern = input.substr(cut + 1);
    for (const auto compare : {basic::vbBinaryCompare, basic::vbTextCompare}) {
        bool fits = false;
        const auto err = basic::attempt([&] { fits = basic::Like(text, pattern, compare); });
        if (err.Number != 0 && err.Number != 93) std::abort();
        const bool comparable = compare == basic::vbBinaryCompare && text.size() <= 12 && pattern.size() <= 12 &&
                                isPlain(text) && isPlain(pattern);
        const auto wide = basic::attempt([&] {
            const auto wideText = basic::toUtf16(text), widePattern = basic::toUtf16(pattern);
            const bool wideFits = tamarik::Like(wideText, widePattern, compare);
            if (comparable && wideFits != fits) std::abort();
        });
        if (wide.Number != 0 && wide.Number != 93) std::abort();
        if (comparable && (err.Number != 0 || fits != plainLike(text, pattern))) std::abort();
    }
    return 0;
}
