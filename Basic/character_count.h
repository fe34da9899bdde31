#pragma once
// Conversion between character and byte positions of a text.
#include <cstddef>
#include <string_view>

namespace basic {

/// Returns the number of characters: of bytes that are not continuation bytes.
std::size_t countCharacters(std::string_view text) noexcept;

/// Returns the position of the character `index`, from 0; the size of the text if it has fewer characters.
std::size_t characterOffset(std::string_view text, std::size_t index) noexcept;

} // namespace basic
