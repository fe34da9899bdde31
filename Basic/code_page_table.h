#pragma once
// One- and two-byte characters of a code page, as tables. Only code_page.cpp needs this.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace basic {

/// The first of the private-use characters for bytes without a character: U+F700 + byte, byte 80 to FF.
inline constexpr char32_t kBytePlane = 0xF700;

/// True for a character that represents such a byte.
constexpr bool standsForByte(char32_t c) { return c >= kBytePlane + 0x80 && c <= kBytePlane + 0xFF; }

/// The characters of a code page that can be converted back to the same bytes. Bytes below 80 are ASCII in all pages.
/// Built from ICU's converter.
class CodePageTable {
public:
    explicit CodePageTable(const char* icuName);

    /// Returns the character at byte `at` and advances `at`.
    char32_t next(std::string_view bytes, std::size_t& at) const noexcept;

    /// Appends the bytes of a character. Returns false if the page lacks it.
    bool append(std::string& bytes, char32_t character) const;

private:
    std::vector<char16_t> ones_ = std::vector<char16_t>(0x80); // by byte - 80; 0 = no character
    std::vector<char16_t> twos_;                               // by (lead - 80) * 100 + trail; empty = none
    std::vector<std::uint16_t> bytesOf_ = std::vector<std::uint16_t>(0x10000); // by character; 0 = lacking
};

} // namespace basic
