#pragma once
// Finds all occurrences of a text in linear time, for text_search.cpp.
#include "Basic/case_folding.h"
#include "Basic/needle.h"
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace basic {

/// A range of bytes, [first, last).
struct ByteRange {
    std::size_t first, last;
};

/// Searches for one text in another. Both must outlive it; the text searched for must not be empty.
class TextFinder {
public:
    TextFinder(std::string_view text, std::string_view what, VbCompareMethod compare);
    TextFinder(const TextFinder&) = delete;
    TextFinder& operator=(const TextFinder&) = delete;

    /// The first occurrence at or after byte `from`.
    std::optional<ByteRange> next(std::size_t from) const;

    /// The last occurrence.
    std::optional<ByteRange> last() const;

private:
    void foldText(std::string_view text);
    ByteRange original(std::size_t found) const;

    std::string foldedText_, foldedWhat_;
    std::string_view text_, what_;
    Needle<char> needle_;
    std::vector<std::size_t> origins_; // the original position of each folded byte; empty if they are equal
};

} // namespace basic
