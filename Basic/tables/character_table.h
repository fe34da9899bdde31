#pragma once
// What case conversion has to know of each character, as a constant table that the build generates.
#include <cstddef>
#include <cstdint>

namespace basic {

/// Distances to the other forms of a character, as far as they are a single character.
struct CharacterForms {
    std::int32_t folded, upper, lower;
    bool isLetter;
};

inline constexpr std::size_t kCharacterBlockSize = 128, kCharacterBlockCount = 0x110000 / kCharacterBlockSize;

extern const std::uint16_t kCharacterBlocks[kCharacterBlockCount];
extern const std::uint16_t kFormsOfBlock[][kCharacterBlockSize];
extern const CharacterForms kCharacterForms[];

/// The forms of a character; those of an unassigned one for a number that is not a character.
inline const CharacterForms& formsOf(char32_t character) noexcept {
    const std::size_t block = character / kCharacterBlockSize;
    if (block >= kCharacterBlockCount) return kCharacterForms[0];
    return kCharacterForms[kFormsOfBlock[kCharacterBlocks[block]][character % kCharacterBlockSize]];
}

inline char32_t folded(char32_t character) noexcept {
    return character + static_cast<char32_t>(formsOf(character).folded);
}
inline char32_t upperCase(char32_t character) noexcept {
    return character + static_cast<char32_t>(formsOf(character).upper);
}
inline char32_t lowerCase(char32_t character) noexcept {
    return character + static_cast<char32_t>(formsOf(character).lower);
}
inline bool isLetter(char32_t character) noexcept { return formsOf(character).isLetter; }

} // namespace basic
