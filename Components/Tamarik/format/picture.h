#pragma once
// User-defined formats as sequences of codes and literal characters.
#include <cstddef>
#include <string_view>
#include <vector>

namespace tamarik {

struct PictureUnit {
    char16_t unit;
    bool isLiteral = false; ///< quoted, or after a backslash

    bool is(char16_t code) const { return !isLiteral && unit == code; }
};

using Picture = std::vector<PictureUnit>;

/// The sections of a format, which semicolons separate. There is at least one.
std::vector<Picture> sectionsOf(std::u16string_view format);

/// What a format is for, by its first code.
enum class PictureKind { Literal, Number, Date, Text };
PictureKind kindOf(const std::vector<Picture>& sections);

/// The length of the date code at `at`, such as 4 for "yyyy" and 5 for "am/pm"; 0 if there is none.
std::size_t dateCodeAt(const Picture& picture, std::size_t at);

/// Whether a code for an exponent is at `at`: "E+" or "E-", with a digit after it.
bool isExponentAt(const Picture& picture, std::size_t at);

} // namespace tamarik
