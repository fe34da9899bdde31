#pragma once
// From characters to bytes of a text, and back.
#include <cstddef>
#include <string_view>

namespace basic {

/// How many characters a text has: its bytes that continue no other.
std::size_t countCharacters(std::string_view text) noexcept;

/// The byte at which the character number `index`, from 0, begins; the text's size when there are not as many.
std::size_t characterOffset(std::string_view text, std::size_t index) noexcept;

} // namespace basic
