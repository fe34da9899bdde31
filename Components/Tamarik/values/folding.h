#pragma once
// Hashes and equality without regard to case.
#include "Components/Tamarik/text/letters.h"
#include "Components/Tamarik/values/text_block.h"
#include <cstdint>
#include <string_view>

namespace tamarik {

/// A hash of the folded text, never 0.
[[nodiscard]] inline std::uint32_t foldedHash(std::u16string_view text) {
    std::uint32_t hash = 2166136261U;
    for (const char16_t unit : text) hash = (hash ^ foldUnit(unit)) * 16777619U;
    hash = (hash ^ (hash >> 15)) * 0x2C1B3C6DU;
    hash ^= hash >> 13;
    return hash != 0 ? hash : 1;
}

/// The same for a text, which remembers it.
[[nodiscard]] inline std::uint32_t foldedHash(const TextBlock* text) {
    if (text && text->hash != 0) return text->hash;
    const std::uint32_t hash = foldedHash(unitsOf(text));
    // A text is shared, but its hash is no part of its value.
    if (text) const_cast<TextBlock*>(text)->hash = hash;
    return hash;
}

[[nodiscard]] inline bool equalFolded(std::u16string_view a, std::u16string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i] && foldUnit(a[i]) != foldUnit(b[i])) return false;
    return true;
}

} // namespace tamarik
