#pragma once
// The lines of positions that mostly ascend.
#include "Components/QLToolkit/source/source_text.h"
#include <algorithm>

namespace qltoolkit {

class LineCursor {
public:
    explicit LineCursor(const SourceText& source) : source_(source) {}

    /// As SourceText::lineOf, but without a search for a position near the last one.
    [[nodiscard]] std::uint32_t lineOf(Pos at) {
        if (at < source_.lineStart(line_)) return earlierLineOf(at);
        const auto end = std::min(line_ + kNear, source_.lineCount());
        for (; line_ < end; ++line_)
            if (at < source_.lineStart(line_ + 1)) return line_;
        return line_ = source_.lineOf(at);
    }

private:
    static constexpr std::uint32_t kNear = 8;

    /// The head of a loop, for instance: the cursor stays.
    [[nodiscard]] std::uint32_t earlierLineOf(Pos at) const {
        const auto last = line_ > kNear ? line_ - kNear : 1;
        for (auto line = line_; line > last; --line)
            if (at >= source_.lineStart(line - 1)) return line - 1;
        return source_.lineOf(at);
    }

    const SourceText& source_;
    std::uint32_t line_ = 1;
};

} // namespace qltoolkit
