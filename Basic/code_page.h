#pragma once
// Windows code pages: lossless conversion between the bytes of VB's files and UTF-8.
#include "Basic/tables/code_page_names.h"
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace basic {

struct CodePageTable;

/// A Windows code page: 874, 932, 936, 949, 950, 1250 to 1258, or 65001 for UTF-8. Cheap to make and to copy,
/// and thread-safe.
///
/// encode(decode(bytes)) is `bytes` for every byte string. Windows-1252's five undefined bytes are U+0081, U+008D,
/// U+008F, U+0090 and U+009D. In the other pages each byte without a character, or whose character is encoded by
/// other bytes, becomes the private-use character U+F700 + byte.
class CodePage {
public:
    /// The western European page, VB's default.
    static CodePage windows1252() noexcept { return CodePage(); }

    /// True for the numbers listed above.
    static bool isKnown(int number) noexcept;
    /// All pages by ascending number.
    static std::span<const CodePageName> all() noexcept;

    static bool isDoubleByte(int number) noexcept;
    bool isDoubleByte() const noexcept { return isDoubleByte(number_); }

    /// Error 5 for a number not listed above.
    explicit CodePage(int number);

    int number() const noexcept { return number_; }

    /// Returns the bytes as UTF-8. Never fails.
    std::string decode(std::string_view bytes) const;

    /// Returns the text in this page. Error 5 if the page lacks a character, or the text is not well-formed UTF-8.
    std::string encode(std::string_view utf8) const;

    /// As encode, but returns nothing instead of raising the error.
    std::optional<std::string> tryEncode(std::string_view utf8) const;

    /// Returns the text with "?" instead of each character that encode would refuse.
    std::string replaceMissing(std::string_view utf8) const;

private:
    CodePage() noexcept = default;

    int number_ = 1252;
    const CodePageTable* table_ = nullptr; // null for 1252 and 65001, which need no table
};

} // namespace basic
