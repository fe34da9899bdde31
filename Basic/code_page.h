#pragma once
// Windows code pages: the bytes of VB's files as UTF-8 text and back, without losing one.
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace basic {

class CodePageTable;

/// A code page of Windows: 874, 932, 936, 949, 950, 1250 to 1258, or 65001 for UTF-8. Cheap to copy; one object may
/// be used by several threads at once. Building a double-byte page takes some milliseconds: keep it.
///
/// encode(decode(bytes)) is `bytes` for every byte string. Windows-1252's five undefined bytes are U+0081, U+008D,
/// U+008F, U+0090 and U+009D. In the other pages each byte that has no character, or whose character belongs to
/// other bytes, is the private-use character U+F700 + byte.
class CodePage {
public:
    /// The page of western Windows, VB's default.
    static CodePage windows1252() noexcept { return CodePage(); }

    /// Error 5 for a number that is not one of the above.
    explicit CodePage(int number);

    int number() const noexcept { return number_; }

    /// The bytes as UTF-8 text. Never fails.
    std::string decode(std::string_view bytes) const;

    /// The text's bytes. Error 5 when the page lacks a character of it, or when it is no well-formed UTF-8.
    std::string encode(std::string_view utf8) const;

    /// As encode, but nothing instead of the error.
    std::optional<std::string> tryEncode(std::string_view utf8) const;

private:
    CodePage() noexcept = default;

    int number_ = 1252;
    std::shared_ptr<const CodePageTable> table_; // absent for 1252 and 65001, which need none
};

} // namespace basic
