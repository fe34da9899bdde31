#include "Components/QLToolkit/lexer/keyword_table.h"
#include <algorithm>

namespace qltoolkit {

Keyword keywordOf(const char* name, std::uint32_t length, std::uint64_t key) {
    const Keyword keyword = keywordOfKey(key);
    const auto text = spelling(keyword);
    const bool same = std::equal(name, name + length, text.begin(), text.end(),
                                 [](char a, char b) { return (a | 0x20) == (b | 0x20); });
    return same ? keyword : Keyword::None;
}

std::string_view spelling(Keyword k) { return keyword_table::kKeywords[static_cast<std::size_t>(k)].text; }

} // namespace qltoolkit
