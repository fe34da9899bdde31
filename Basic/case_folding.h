#pragma once
// Comparison of texts ignoring case, by Unicode's simple case folding: per character and independent of the locale.
#include <compare>
#include <cstddef>
#include <string>
#include <string_view>

namespace basic {

/// VB's names for the ways of comparing texts.
enum VbCompareMethod { vbBinaryCompare = 0, vbTextCompare = 1 };

/// Returns the folded form of a character.
char32_t foldCharacter(char32_t character) noexcept;

/// Folds each character. The results are equal for texts that differ only in case.
std::string foldCase(std::string_view text);

/// True if the texts are equal, ignoring case.
bool equalNoCase(std::string_view a, std::string_view b) noexcept;

/// Compares the folded texts by code point; equivalent if equalNoCase.
std::weak_ordering compareNoCase(std::string_view a, std::string_view b) noexcept;

/// True if `text` begins with `beginning`, ignoring case.
bool startsWithNoCase(std::string_view text, std::string_view beginning) noexcept;

// For containers with case-insensitive keys. Lookups by string_view need no copy.
struct NoCaseHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const noexcept;
};
struct NoCaseEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const noexcept { return equalNoCase(a, b); }
};
struct NoCaseLess {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const noexcept { return compareNoCase(a, b) < 0; }
};

} // namespace basic
