#pragma once
// Characters of UTF-8 text, one at a time.
#include <cstddef>
#include <string>
#include <string_view>

namespace basic {

/// What nextCharacter gives for a byte that starts no well-formed sequence.
inline constexpr char32_t kNoCharacter = 0xFFFFFFFF;

/// The character at byte `at`, which moves behind it. Over-long forms, surrogates and cut sequences are not
/// characters: they give kNoCharacter and `at` moves by one byte. `at` must lie inside the text.
char32_t nextCharacter(std::string_view text, std::size_t& at) noexcept;

/// Appends a character (not a surrogate, at most U+10FFFF).
void appendCharacter(std::string& text, char32_t character);

/// How many bytes from `at` on are ASCII.
std::size_t asciiRun(std::string_view text, std::size_t at) noexcept;

} // namespace basic
