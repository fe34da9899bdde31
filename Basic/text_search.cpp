#include "Basic/text_search.h"
#include "Basic/character_count.h"
#include "Basic/runtime_error.h"
#include "Basic/text_finder.h"

namespace basic {

namespace {

void requireArgument(bool good) {
    if (!good) throw RuntimeError(kInvalidProcedureCall);
}

Long characterPosition(std::string_view text, std::size_t byte) {
    return static_cast<Long>(countCharacters(text.substr(0, byte)) + 1);
}

/// -1 means unlimited, as everywhere in VB.
std::size_t countOrAll(Long count) {
    requireArgument(count >= -1);
    return static_cast<std::size_t>(count);
}

} // namespace

Long InStr(Long start, std::string_view text, std::string_view what, VbCompareMethod compare) {
    requireArgument(start >= 1);
    const std::size_t from = characterOffset(text, static_cast<std::size_t>(start - 1));
    if (from == text.size()) return 0;
    if (what.empty()) return start;
    const std::string_view rest = text.substr(from);
    const auto found = TextFinder(rest, what, compare).next(0);
    return found ? start - 1 + characterPosition(rest, found->first) : 0;
}

Long InStr(std::string_view text, std::string_view what, VbCompareMethod compare) {
    return InStr(1, text, what, compare);
}

Long InStrRev(std::string_view text, std::string_view what, Long start, VbCompareMethod compare) {
    requireArgument(start == -1 || start >= 1);
    const auto length = static_cast<Long>(countCharacters(text));
    if (start == -1) start = length;
    if (start > length || text.empty()) return 0;
    if (what.empty()) return start;
    const std::string_view searched = text.substr(0, characterOffset(text, static_cast<std::size_t>(start)));
    const auto found = TextFinder(searched, what, compare).last();
    return found ? characterPosition(text, found->first) : 0;
}

std::vector<std::string> Split(std::string_view text, std::string_view delimiter, Long limit, VbCompareMethod compare) {
    const std::size_t most = countOrAll(limit);
    if (text.empty() || most == 0) return {};
    if (delimiter.empty()) return {std::string(text)};
    const TextFinder finder(text, delimiter, compare);
    std::vector<std::string> pieces;
    std::size_t at = 0;
    while (pieces.size() + 1 < most) {
        const auto found = finder.next(at);
        if (!found) break;
        pieces.emplace_back(text.substr(at, found->first - at));
        at = found->last;
    }
    pieces.emplace_back(text.substr(at));
    return pieces;
}

std::string Join(const std::vector<std::string>& pieces, std::string_view delimiter) {
    std::string joined;
    for (const std::string& piece : pieces) {
        if (&piece != pieces.data()) joined += delimiter;
        joined += piece;
    }
    return joined;
}

std::string Replace(std::string_view text, std::string_view what, std::string_view by, Long start, Long count,
                    VbCompareMethod compare) {
    const std::size_t most = countOrAll(count);
    requireArgument(start >= 1);
    text.remove_prefix(characterOffset(text, static_cast<std::size_t>(start - 1)));
    if (text.empty() || what.empty()) return std::string(text);
    const TextFinder finder(text, what, compare);
    std::string result;
    std::size_t at = 0;
    for (std::size_t done = 0; done < most; ++done) {
        const auto found = finder.next(at);
        if (!found) break;
        result.append(text, at, found->first - at).append(by);
        at = found->last;
    }
    return result.append(text, at);
}

std::vector<std::string> Filter(const std::vector<std::string>& pieces, std::string_view what, bool include,
                                VbCompareMethod compare) {
    std::vector<std::string> kept;
    for (const std::string& piece : pieces) {
        if ((InStr(piece, what, compare) > 0) == include) kept.push_back(piece);
    }
    return kept;
}

Integer StrComp(std::string_view a, std::string_view b, VbCompareMethod compare) noexcept {
    const std::weak_ordering order = compare == vbTextCompare ? compareNoCase(a, b) : a.compare(b) <=> 0;
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

} // namespace basic
