#pragma once
// Iteration over the characters of UTF-8 text.
#include <cstddef>
#include <string>
#include <string_view>

namespace basic {

/// The result of nextCharacter for a byte that does not start a well-formed sequence.
inline constexpr char32_t kNoCharacter = 0xFFFFFFFF;

/// Returns the character at byte `at` and advances `at`. For over-long forms, surrogates and truncated sequences it
/// returns kNoCharacter and advances by one byte. `at` must be within the text.
char32_t nextCharacter(std::string_view text, std::size_t& at) noexcept;

/// Appends a character (not a surrogate, at most U+10FFFF).
void appendCharacter(std::string& text, char32_t character);

/// The number of ASCII bytes from `at` on.
std::size_t asciiRun(std::string_view text, std::size_t at) noexcept;

} // namespace basic
