#pragma once
// The lines of positions that mostly ascend.
#include "Components/QLToolkit/source/source_text.h"
#include <algorithm>

namespace qltoolkit {

class LineCursor {
public:
    explicit LineCursor(const SourceText& source) : source_(source) {}

    /// As SourceText::lineOf, but without a search for a position on one of the next lines after the last one.
    [[nodiscard]] std::uint32_t lineOf(Pos at) {
        if (at < source_.lineStart(line_)) return source_.lineOf(at); // the head of a loop: the cursor stays
        constexpr std::uint32_t kNear = 8;
        const auto end = std::min(line_ + kNear, source_.lineCount());
        for (; line_ < end; ++line_)
            if (at < source_.lineStart(line_ + 1)) return line_;
        return line_ = source_.lineOf(at);
    }

private:
    const SourceText& source_;
    std::uint32_t line_ = 1;
};

} // namespace qltoolkit
