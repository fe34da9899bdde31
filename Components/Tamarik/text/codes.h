#pragma once
// Characters by number, and texts in a code page.
#include "Basic/code_page.h"
#include "Basic/types.h"
#include <string>
#include <string_view>

namespace tamarik {

/// Returns a text in a code page, with "?" for each unit that the page lacks.
std::string toBytes(std::u16string_view text, const basic::CodePage& page);

/// Returns the text of bytes in a code page. Never fails.
std::u16string fromBytes(std::string_view bytes, const basic::CodePage& page);

/// Returns the number of the first character in a code page; two bytes are an Integer, negative from &H8000 on. Error 5
/// for an empty text, as with the functions below.
basic::Integer Asc(std::u16string_view text, const basic::CodePage& page = basic::CodePage::windows1252());
basic::Integer AscW(std::u16string_view text);
basic::Byte AscB(std::string_view bytes);

/// Returns a character by number: 0 to 255, or in double-byte pages -32768 to 65535. Error 5 for others.
std::u16string Chr(basic::Long number, const basic::CodePage& page = basic::CodePage::windows1252());

/// Returns the unit with a number from -32768 to 65535. Error 5 for others.
char16_t ChrW(basic::Long number);

/// Returns the byte with a number from 0 to 255. Error 6 for others.
char ChrB(basic::Long number);

} // namespace tamarik
