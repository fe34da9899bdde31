#include "Components/QLToolkit/source/ignored_warnings.h"
#include "Basic/case_folding.h"
#include <algorithm>
#include <charconv>
#include <cstring>
#include <optional>

namespace qltoolkit {

namespace {

constexpr std::string_view kMark = "fernwick", kVerb = "ignore";
/// Of one statement; more are an error.
constexpr std::uint32_t kMostContinuations = 24;

bool isBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

/// Where a line's comment begins, or the end of the line.
std::size_t commentOf(std::string_view line) {
    bool isInLiteral = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        isInLiteral ^= line[i] == '"';
        if (line[i] == '\'' && !isInLiteral) return i;
    }
    return line.size();
}

/// Whether a colon ends an apostrophe and the mark. The comment may contain other words before them.
bool isMark(std::string_view comment, std::size_t colon) {
    if (colon < kMark.size() || !basic::equalNoCase(comment.substr(colon - kMark.size(), kMark.size()), kMark))
        return false;
    return trimmed(comment.substr(0, colon - kMark.size())).ends_with('\'');
}

bool isContinued(std::string_view line) {
    line = trimmed(line);
    return line == "_" || (line.size() > 1 && line.ends_with('_') && isBlank(line[line.size() - 2]));
}

std::optional<Message> warningOf(std::string_view number) {
    int value = 0;
    const auto* end = number.data() + number.size();
    if (const auto read = std::from_chars(number.data(), end, value); read.ec != std::errc{} || read.ptr != end)
        return std::nullopt;
    for (const auto& info : allMessages())
        if (static_cast<int>(info.message) == value && info.severity == Severity::Warning) return info.message;
    return std::nullopt;
}

} // namespace

// A colon is rarer than an apostrophe, and looking for it costs next to nothing.
IgnoredWarnings::IgnoredWarnings(const SourceText& source) : source_(source) {
    const char* const begin = source.data();
    for (Pos at = 1; at < source.size(); ++at) {
        const auto* colon = static_cast<const char*>(std::memchr(begin + at, ':', source.size() - at));
        if (!colon) return;
        at = static_cast<Pos>(colon - begin);
        if ((colon[-1] | 0x20) != kMark.back()) continue;
        const auto number = source.lineOf(at);
        readLine(number);
        at = source.lineStart(number + 1) - 1;
    }
}

void IgnoredWarnings::readLine(std::uint32_t number) {
    const auto line = source_.line(number);
    const auto begin = commentOf(line);
    const auto comment = line.substr(begin);
    for (auto colon = comment.find(':'); colon != comment.npos; colon = comment.find(':', colon + 1))
        if (isMark(comment, colon)) {
            const auto start = source_.lineStart(number);
            return readComment(start + static_cast<Pos>(begin + colon) + 1, start + static_cast<Pos>(line.size()));
        }
}

void IgnoredWarnings::readComment(Pos begin, Pos end) {
    const auto skipBlanks = [&] {
        while (begin < end && isBlank(source_.data()[begin])) ++begin;
    };
    skipBlanks();
    const auto verbEnd = std::min<Pos>(end, begin + static_cast<Pos>(kVerb.size()));
    if (!basic::equalNoCase(source_.text(begin, verbEnd), kVerb)) return;
    begin = verbEnd;
    if (begin < end && !isBlank(source_.data()[begin])) return; // a longer word
    for (;; ++begin) {
        skipBlanks();
        const auto item = begin;
        while (begin < end && source_.data()[begin] != ',') ++begin;
        readItem(item, begin);
        if (begin >= end) return;
    }
}

/// Reads a number. Words may follow it, to say why.
void IgnoredWarnings::readItem(Pos begin, Pos end) {
    const auto text = source_.text(begin, end);
    const auto number = text.substr(0, text.find_first_of(" \t"));
    const auto message = warningOf(number);
    if (!message) return mistakes_.push_back({begin, source_.decode(number)});
    const auto last = source_.lineOf(begin);
    // Numbers that are repeated must not make a long line slow.
    for (auto at = listed_.rbegin(); at != listed_.rend() && at->lastLine == last; ++at)
        if (at->message == *message) return;
    listed_.push_back({firstLineOf(last), last, *message, begin});
}

std::uint32_t IgnoredWarnings::firstLineOf(std::uint32_t last) const {
    auto first = last;
    while (first > 1 && last - first < kMostContinuations && isContinued(source_.line(first - 1))) --first;
    return first;
}

void IgnoredWarnings::removeFrom(std::vector<Diagnostic>& diagnostics) {
    if (listed_.empty()) return;
    std::erase_if(diagnostics, [&](const Diagnostic& diagnostic) {
        bool isListed = false;
        for (auto at = std::ranges::lower_bound(listed_, diagnostic.line, {}, &Listed::lastLine);
             at != listed_.end() && at->firstLine <= diagnostic.line; ++at)
            if (static_cast<int>(at->message) == diagnostic.number) isListed = at->isUsed = true;
        return isListed;
    });
}

} // namespace qltoolkit
