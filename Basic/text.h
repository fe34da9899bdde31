#pragma once
// VB's functions on texts. A text is UTF-8 and a character is a code point, so that no function can cut one in two;
// VB counts the few characters beyond U+FFFF as two. Positions count from 1, negative lengths are error 5.
#include "Basic/code_page.h"
#include "Basic/types.h"
#include <limits>
#include <string>
#include <string_view>

namespace basic {

/// How many characters.
Long Len(std::string_view text) noexcept;

/// The first or last `length` characters, all of them where there are not as many.
std::string Left(std::string_view text, Long length);
std::string Right(std::string_view text, Long length);

/// `length` characters from `start` on; empty when `start` lies behind the end. Error 5 for a start below 1.
std::string Mid(std::string_view text, Long start, Long length = std::numeric_limits<Long>::max());

/// Without leading and trailing blanks. Tabs and line ends are no blanks.
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);

/// Each letter's capital or small one where that is a single character, so that "ß" stays.
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

/// `count` blanks.
std::string Space(Long count);

/// The first character of `text` `count` times. Error 5 for an empty text.
std::string String(Long count, std::string_view text);

std::string StrReverse(std::string_view text);

/// The first character's number in a code page, '?' for a character that the page lacks. As in VB two bytes make an
/// Integer, so that it is negative from 8000 hexadecimal on. Error 5 for an empty text.
Integer Asc(std::string_view text, const CodePage& page = CodePage::windows1252());

/// The character of a number: 0 to 255, and in double-byte pages two bytes as -32768 to 65535. Otherwise error 5.
std::string Chr(Long number, const CodePage& page = CodePage::windows1252());

/// The first character's UTF-16 number as an Integer, of one beyond U+FFFF its first half. Error 5 for an empty text.
Integer AscW(std::string_view text);

/// The character of a UTF-16 number from -32768 to 65535. Error 5 for others and for halves of characters.
std::string ChrW(Long number);

} // namespace basic
