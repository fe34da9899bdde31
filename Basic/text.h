#pragma once
// VB's text functions. Texts are UTF-8 and a character is a code point, so no function can split one; VB counts the few
// characters above U+FFFF as two. Positions start at 1; negative lengths are error 5.
#include "Basic/code_page.h"
#include "Basic/types.h"
#include <limits>
#include <string>
#include <string_view>

namespace basic {

/// The number of characters.
Long Len(std::string_view text) noexcept;

/// Returns the first or last `length` characters, or the whole text if it is shorter.
std::string Left(std::string_view text, Long length);
std::string Right(std::string_view text, Long length);

/// Returns `length` characters from `start` on; "" if `start` is beyond the end. Error 5 for a start below 1.
std::string Mid(std::string_view text, Long start, Long length = std::numeric_limits<Long>::max());

/// Remove leading and trailing blanks, but not tabs and line ends.
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);

/// Convert letters to upper or lower case if that is a single character; "ß" is unchanged.
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

/// `count` blanks.
std::string Space(Long count);

/// Repeats the first character of `text`. Error 5 for an empty text.
std::string String(Long count, std::string_view text);

std::string StrReverse(std::string_view text);

/// Returns the number of the first character in a code page, that of '?' if the page lacks it. As in VB, two bytes are
/// an Integer, which is negative from &H8000 on. Error 5 for an empty text.
Integer Asc(std::string_view text, const CodePage& page = CodePage::windows1252());

/// Returns a character by number: 0 to 255, or in double-byte pages -32768 to 65535. Error 5 for others.
std::string Chr(Long number, const CodePage& page = CodePage::windows1252());

/// Returns the first UTF-16 code unit of a text as an Integer. Error 5 for an empty text.
Integer AscW(std::string_view text);

/// Returns a character by UTF-16 number, -32768 to 65535. Error 5 for others and for surrogates.
std::string ChrW(Long number);

} // namespace basic
