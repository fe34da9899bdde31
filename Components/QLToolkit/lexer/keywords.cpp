#include "Components/QLToolkit/lexer/keyword_table.h"

namespace qltoolkit {

Keyword keywordOf(const char* name, std::uint32_t length, std::uint64_t key) {
    const Keyword keyword = keywordOfKey(key);
    const auto& [first, second] = keyword_table::kWords[static_cast<std::size_t>(keyword)];
    const auto rest = length > kWordBytes ? foldedWord(name + kWordBytes, length - kWordBytes) : 0;
    const bool same = length <= 2 * kWordBytes && foldedWord(name, length) == first && rest == second;
    return same ? keyword : Keyword::None;
}

std::string_view spelling(Keyword k) { return keyword_table::kKeywords[static_cast<std::size_t>(k)].text; }

} // namespace qltoolkit
