#pragma once
// The keywords: those words of the language that the grammar knows.
#include "Basic/vb_words.h"
#include <string_view>

namespace qltoolkit {

/// Only the values up to kLastKeyword are keywords. Reserved words and types cannot be names; contextual words can.
using Keyword = basic::VbWord;

inline constexpr Keyword kLastReserved = Keyword::Xor;
inline constexpr Keyword kLastType = Keyword::Variant;
inline constexpr Keyword kLastKeyword = Keyword::Width;

[[nodiscard]] constexpr bool isReserved(Keyword k) { return k != Keyword::None && k <= kLastReserved; }
[[nodiscard]] constexpr bool isTypeWord(Keyword k) { return k > kLastReserved && k <= kLastType; }

/// Returns the keyword with these characters, regardless of case, or None. Reads up to 8 bytes beyond the end.
/// `key` is nameKey(name, length).
[[nodiscard]] Keyword keywordOf(const char* name, std::uint32_t length, std::uint64_t key);

/// Returns the keyword's text in its proper case.
[[nodiscard]] std::string_view spelling(Keyword);

} // namespace qltoolkit
