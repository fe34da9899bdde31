#pragma once
// One- and two-byte characters of a code page, as tables. Only code_page.cpp needs this.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace basic {

/// First of the private-use characters that stand for bytes without a character: U+F700 + byte, byte 80 to FF.
inline constexpr char32_t kBytePlane = 0xF700;

/// Whether the character stands for a byte that has none.
constexpr bool standsForByte(char32_t c) { return c >= kBytePlane + 0x80 && c <= kBytePlane + 0xFF; }

/// The characters of one code page that come back as the bytes that they were; bytes below 80 are ASCII in all of
/// them. Built from ICU's converter.
class CodePageTable {
public:
    explicit CodePageTable(const char* icuName);

    /// The character at byte `at`, which moves behind it.
    char32_t next(std::string_view bytes, std::size_t& at) const noexcept;

    /// Appends the character's bytes; false when the page lacks it.
    bool append(std::string& bytes, char32_t character) const;

private:
    std::vector<char16_t> ones_ = std::vector<char16_t>(0x80); // by byte - 80; 0 = no character
    std::vector<char16_t> twos_;                               // by (lead - 80) * 100 + trail; empty = none
    std::vector<std::uint16_t> bytesOf_ = std::vector<std::uint16_t>(0x10000); // by character; 0 = lacking
};

} // namespace basic
