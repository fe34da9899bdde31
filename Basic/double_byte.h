#pragma once
// The double-byte code pages by the ranges of their bytes. This needs no table, so that any file can be examined quickly.
#include <array>
#include <cstddef>
#include <string_view>

namespace basic {

/// Japanese, simplified Chinese, Korean and traditional Chinese.
inline constexpr std::array kDoubleBytePages = {932, 936, 949, 950};

/// True if `byte` begins a two-byte character of this code page; false in all single-byte pages.
bool isLeadByte(int codePage, unsigned char byte) noexcept;

/// Counts the characters of text as if it were in a double-byte page.
class DoubleByteCount {
public:
    explicit DoubleByteCount(int page) : page_(page) {}

    /// Adds the characters above 127 of a text.
    void add(std::string_view bytes) noexcept;

    int page() const noexcept { return page_; }
    std::size_t characters() const noexcept { return common_ + rare_ + bad_; }

    /// True if there are hardly any bytes that are not part of a character.
    bool decodes() const noexcept { return bad_ * 20 <= characters(); }

    /// True for text that hardly anything else than the page's language produces: at least `least` of its usual
    /// characters, few other ones, and often two high bytes in succession, which western languages rarely have.
    bool isLikely(std::size_t least) const noexcept;

    /// True if a larger part of this text than of `other` consists of usual characters.
    bool fitsBetterThan(const DoubleByteCount& other) const noexcept;

private:
    std::size_t addPair(unsigned char lead, unsigned char trail) noexcept;

    int page_;
    std::size_t common_ = 0;  ///< characters that ordinary texts consist of
    std::size_t certain_ = 0; ///< those of them that are not a high byte and an ASCII letter
    std::size_t rare_ = 0;
    std::size_t bad_ = 0; ///< bytes that are not part of a character
};

} // namespace basic
