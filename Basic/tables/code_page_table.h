#pragma once
// One- and two-byte characters of a code page, as constant tables that need no memory and no time at the start.
#include "Basic/tables/code_page_names.h"
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace basic {

/// The first of the private-use characters for bytes without a character: U+F700 + byte, byte 80 to FF.
inline constexpr char32_t kBytePlane = 0xF700;

/// True for a character that represents such a byte.
constexpr bool standsForByte(char32_t c) { return c >= kBytePlane + 0x80 && c <= kBytePlane + 0xFF; }

inline constexpr std::size_t kBlockSize = 64, kBlockCount = 0x10000 / kBlockSize;

/// The values of all code pages, in blocks. The build generates them; 0 is a missing character.
extern const std::uint16_t kCodePageBlocks[][kBlockSize];

/// The characters of a code page that can be converted back to the same bytes. Bytes below 80 are ASCII in all pages.
struct CodePageTable {
    std::uint16_t characterBlocks[kBlockCount]; ///< by the first bits of a byte, or of lead * 100 + trail
    std::uint16_t byteBlocks[kBlockCount];      ///< by the first bits of a character

    /// Returns the character at byte `at`, which is not an ASCII one, and advances `at`.
    char32_t next(std::string_view bytes, std::size_t& at) const noexcept;

    /// Appends the bytes of a character. Returns false if the page lacks it.
    bool append(std::string& bytes, char32_t character) const;
};

/// The pages of kCodePageNames that have a table, in that order.
extern const CodePageTable kCodePageTables[kCodePageTableCount];

} // namespace basic
