#include "Basic/text_finder.h"
#include "Basic/utf8.h"
#include <algorithm>

namespace basic {

TextFinder::TextFinder(std::string_view text, std::string_view what, VbCompareMethod compare)
    : foldedWhat_(compare == vbTextCompare ? foldCase(what) : ""),
      text_(text),
      what_(compare == vbTextCompare ? foldedWhat_ : what),
      needle_(what_) {
    if (compare != vbTextCompare) return;
    foldText(text);
    text_ = foldedText_;
}

void TextFinder::foldText(std::string_view text) {
    foldedText_ = foldCase(text);
    if (asciiRun(text, 0) == text.size()) return;
    origins_.reserve(foldedText_.size() + 1);
    for (std::size_t at = 0, folded = 0; at < text.size();) {
        const std::size_t first = at;
        nextCharacter(text, at);
        const std::size_t begin = folded;
        nextCharacter(foldedText_, folded);
        origins_.insert(origins_.end(), folded - begin, first);
    }
    origins_.push_back(text.size());
}

ByteRange TextFinder::original(std::size_t found) const {
    const std::size_t end = found + what_.size();
    return origins_.empty() ? ByteRange{found, end} : ByteRange{origins_[found], origins_[end]};
}

std::optional<ByteRange> TextFinder::next(std::size_t from) const {
    if (!origins_.empty())
        from = static_cast<std::size_t>(std::lower_bound(origins_.begin(), origins_.end(), from) - origins_.begin());
    const std::size_t found = needle_.find(text_, from);
    if (found == text_.npos) return std::nullopt;
    return original(found);
}

std::optional<ByteRange> TextFinder::last() const {
    const std::size_t found = needle_.findLast(text_);
    if (found == text_.npos) return std::nullopt;
    return original(found);
}

} // namespace basic
