#pragma once
// Texts made of other texts. Negative counts are error 5.
#include "Basic/types.h"
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tamarik {

/// `count` blanks.
std::u16string Space(basic::Long count);

/// Repeats the first unit of a text. Error 5 for an empty text.
std::u16string String(basic::Long count, std::u16string_view text);

/// Repeats the character with a code; of codes above 255 the low byte counts.
std::u16string String(basic::Long count, basic::Long code);

std::u16string StrReverse(std::u16string_view text);

std::u16string Join(std::span<const std::u16string> pieces, std::u16string_view delimiter = u" ");

/// The Mid statement: replaces units of `target` from `start` on by those of `by`, at most `length`, without changing the
/// target's length. Error 5 for a start outside the target, or a negative length.
void replaceMid(std::span<char16_t> target, basic::Long start, std::optional<basic::Long> length,
                std::u16string_view by);

/// The MidB statement, over bytes.
void replaceMid(std::span<char> target, basic::Long start, std::optional<basic::Long> length, std::string_view by);

/// LSet and RSet: fill a text of fixed length, with blanks where `by` is shorter; both keep the first units of a longer one.
void fillLeft(std::span<char16_t> target, std::u16string_view by);
void fillRight(std::span<char16_t> target, std::u16string_view by);

} // namespace tamarik
