#pragma once
// Texts without regard to letter case, by Unicode's simple folding: character by character, the same everywhere.
#include <compare>
#include <cstddef>
#include <string>
#include <string_view>

namespace basic {

/// How two texts are compared, under VB's names.
enum VbCompareMethod { vbBinaryCompare = 0, vbTextCompare = 1 };

/// One character's folded form.
char32_t foldCharacter(char32_t character) noexcept;

/// The text with each character folded: equal for texts that differ in letter case only.
std::string foldCase(std::string_view text);

/// Whether the texts differ in letter case at most.
bool equalNoCase(std::string_view a, std::string_view b) noexcept;

/// The order of the folded texts by code point. Equivalent means equalNoCase.
std::weak_ordering compareNoCase(std::string_view a, std::string_view b) noexcept;

/// Whether `text` begins with `beginning`, letter case aside.
bool startsWithNoCase(std::string_view text, std::string_view beginning) noexcept;

// For containers whose keys disregard letter case; each looks up by string_view without a copy.
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
