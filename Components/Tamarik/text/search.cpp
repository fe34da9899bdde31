#include "Components/Tamarik/text/search.h"
#include "Basic/needle.h"
#include "Components/Tamarik/numbers/arguments.h"

namespace tamarik {

namespace {

/// A text and what is searched in it, both folded where case is ignored. Folding keeps all positions.
class Search {
public:
    Search(std::u16string_view text, std::u16string_view what, VbCompareMethod method)
        : foldedText_(method == vbTextCompare ? fold(text) : u""),
          foldedWhat_(method == vbTextCompare ? fold(what) : u""),
          text_(method == vbTextCompare ? foldedText_ : text),
          needle_(method == vbTextCompare ? foldedWhat_ : what) {}
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    std::size_t next(std::size_t from) const { return needle_.find(text_, from); }
    std::size_t last() const { return needle_.findLast(text_); }

private:
    std::u16string foldedText_, foldedWhat_;
    std::u16string_view text_;
    basic::Needle<char16_t> needle_;
};

/// npos becomes 0.
basic::Long position(std::size_t found) { return static_cast<basic::Long>(found + 1); }

/// `find(rest)` searches the text from `start` on, for what is not empty.
template <class View, class Find>
basic::Long firstPosition(basic::Long start, View text, View what, Find find) {
    requireArgument(start >= 1);
    const auto from = static_cast<std::size_t>(start - 1);
    if (from >= text.size()) return 0;
    if (what.empty()) return start;
    const std::size_t found = find(text.substr(from));
    return found == text.npos ? 0 : position(from + found);
}

} // namespace

basic::Long InStr(basic::Long start, std::u16string_view text, std::u16string_view what, VbCompareMethod method) {
    return firstPosition(start, text, what,
                         [&](std::u16string_view rest) { return Search(rest, what, method).next(0); });
}

basic::Long InStrB(basic::Long start, std::string_view bytes, std::string_view what) {
    return firstPosition(start, bytes, what,
                         [&](std::string_view rest) { return basic::Needle<char>(what).find(rest, 0); });
}

basic::Long InStrRev(std::u16string_view text, std::u16string_view what, basic::Long start, VbCompareMethod method) {
    requireArgument(start == -1 || start >= 1);
    const auto length = static_cast<basic::Long>(text.size());
    if (start == -1) start = length;
    if (start > length || text.empty()) return 0;
    if (what.empty()) return start;
    return position(Search(text.substr(0, static_cast<std::size_t>(start)), what, method).last());
}

std::vector<std::u16string_view> Split(std::u16string_view text, std::u16string_view delimiter, basic::Long limit,
                                       VbCompareMethod method) {
    const std::size_t most = countOrAll(limit);
    if (text.empty() || most == 0) return {};
    if (delimiter.empty()) return {text};
    const Search search(text, delimiter, method);
    std::vector<std::u16string_view> pieces;
    std::size_t at = 0;
    while (pieces.size() + 1 < most) {
        const std::size_t found = search.next(at);
        if (found == text.npos) break;
        pieces.push_back(text.substr(at, found - at));
        at = found + delimiter.size();
    }
    pieces.push_back(text.substr(at));
    return pieces;
}

std::u16string Replace(std::u16string_view text, std::u16string_view what, std::u16string_view by, basic::Long start,
                       basic::Long count, VbCompareMethod method) {
    const std::size_t most = countOrAll(count);
    requireArgument(start >= 1);
    text.remove_prefix(std::min(text.size(), static_cast<std::size_t>(start - 1)));
    if (text.empty() || what.empty()) return std::u16string(text);
    const Search search(text, what, method);
    std::u16string result;
    std::size_t at = 0;
    for (std::size_t done = 0; done < most; ++done) {
        const std::size_t found = search.next(at);
        if (found == text.npos) break;
        result.append(text, at, found - at).append(by);
        at = found + what.size();
    }
    return result.append(text, at);
}

std::vector<std::u16string> Filter(std::span<const std::u16string> pieces, std::u16string_view what, bool include,
                                   VbCompareMethod method) {
    std::vector<std::u16string> kept;
    for (const auto& piece : pieces)
        if ((InStr(1, piece, what, method) > 0) == include) kept.push_back(piece);
    return kept;
}

} // namespace tamarik
