#include "Basic/text_finder.h"
#include "Basic/utf8.h"
#include <algorithm>

namespace basic {

namespace {
// Up to this size a plain search, with the product of both sizes as its worst case, is fast enough.
constexpr std::size_t kShortNeedle = 32;

/// For each prefix of `what`, by its last byte, the length of its longest border: the part that a mismatch may keep.
std::vector<std::size_t> bordersOf(std::string_view what) {
    std::vector<std::size_t> borders(what.size());
    for (std::size_t i = 1, border = 0; i < what.size(); ++i) {
        while (border && what[i] != what[border]) border = borders[border - 1];
        if (what[i] == what[border]) ++border;
        borders[i] = border;
    }
    return borders;
}

/// The algorithm of Knuth, Morris and Pratt.
std::size_t findByBorders(std::string_view text, std::string_view what, const std::vector<std::size_t>& borders,
                          std::size_t from) {
    std::size_t matched = 0;
    for (std::size_t at = from; at < text.size(); ++at) {
        while (matched && text[at] != what[matched]) matched = borders[matched - 1];
        if (text[at] == what[matched]) ++matched;
        if (matched == what.size()) return at + 1 - matched;
    }
    return text.npos;
}
} // namespace

TextFinder::TextFinder(std::string_view text, std::string_view what, VbCompareMethod compare)
    : text_(text), what_(what) {
    if (compare == vbTextCompare) {
        foldText(text);
        foldedWhat_ = foldCase(what);
        text_ = foldedText_;
        what_ = foldedWhat_;
    }
    if (what_.size() > kShortNeedle) borders_ = bordersOf(what_);
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

std::size_t TextFinder::find(std::size_t from) const {
    return borders_.empty() ? text_.find(what_, from) : findByBorders(text_, what_, borders_, from);
}

std::size_t TextFinder::findLast() const {
    if (borders_.empty()) return text_.rfind(what_);
    const std::string text(text_.rbegin(), text_.rend()), what(what_.rbegin(), what_.rend());
    const std::size_t found = findByBorders(text, what, bordersOf(what), 0);
    return found == text.npos ? found : text.size() - found - what.size();
}

ByteRange TextFinder::original(std::size_t found) const {
    const std::size_t end = found + what_.size();
    return origins_.empty() ? ByteRange{found, end} : ByteRange{origins_[found], origins_[end]};
}

std::optional<ByteRange> TextFinder::next(std::size_t from) const {
    if (!origins_.empty())
        from = static_cast<std::size_t>(std::lower_bound(origins_.begin(), origins_.end(), from) - origins_.begin());
    const std::size_t found = find(from);
    if (found == text_.npos) return std::nullopt;
    return original(found);
}

std::optional<ByteRange> TextFinder::last() const {
    const std::size_t found = findLast();
    if (found == text_.npos) return std::nullopt;
    return original(found);
}

} // namespace basic
