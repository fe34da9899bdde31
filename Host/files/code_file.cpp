#include "Host/files/code_file.h"
#include "Basic/case_folding.h"
#include "Host/files/byte_order_mark.h"
#include "Host/files/text_parts.h"
#include <algorithm>

namespace host {
namespace {

constexpr std::string_view kAttribute = "Attribute ";

/// Walks over lines and counts the bytes taken.
class LineWalker {
public:
    explicit LineWalker(std::string_view bytes) : all_(bytes), rest_(bytes) {}
    bool atEnd() const noexcept { return rest_.empty(); }
    std::size_t taken() const noexcept { return all_.size() - rest_.size(); }
    std::string_view peek() const noexcept {
        auto rest = rest_;
        LineEnd end = LineEnd::None;
        return takeLine(rest, end);
    }
    void skip() noexcept {
        LineEnd end = LineEnd::None;
        takeLine(rest_, end);
    }

private:
    std::string_view all_, rest_;
};

std::string_view firstWordOf(std::string_view line) noexcept {
    line = trimBlanks(line);
    return line.substr(0, line.find_first_of(" \t"));
}

bool isVersionLine(std::string_view line) noexcept {
    line = withoutByteOrderMark(line);
    const auto word = firstWordOf(line);
    if (!basic::equalNoCase(word, "VERSION")) return false;
    const auto number = trimBlanks(trimBlanks(line).substr(word.size()));
    return !number.empty() && number.front() >= '0' && number.front() <= '9';
}

bool isObjectLine(std::string_view line) noexcept {
    if (!basic::equalNoCase(line.substr(0, 6), "Object")) return false;
    line = trimBlanks(line.substr(6));
    return !line.empty() && line.front() == '=';
}

/// Skips one balanced Begin block. Returns false if the text ends inside it.
bool skipBeginBlock(LineWalker& lines) noexcept {
    std::size_t depth = 0;
    while (!lines.atEnd()) {
        const auto line = lines.peek();
        lines.skip();
        if (basic::equalNoCase(firstWordOf(line), "Begin"))
            ++depth;
        else if (basic::equalNoCase(trimBlanks(line), "End") && --depth == 0)
            return true;
    }
    return false;
}

bool isAttributeLine(std::string_view line) noexcept {
    return line.size() > kAttribute.size() && line.substr(0, kAttribute.size()) == kAttribute;
}

/// Attributes within the code have names with ".VB_"; no statement begins like that.
bool isHiddenLine(std::string_view line) noexcept {
    return isAttributeLine(line) && line.find("VB_") != std::string_view::npos &&
           line.find('=') != std::string_view::npos;
}

} // namespace

SourceParts splitSource(std::string_view bytes) {
    SourceParts parts;
    LineWalker lines(bytes);
    if (isVersionLine(lines.peek())) {
        lines.skip();
        while (!lines.atEnd() && isObjectLine(lines.peek())) lines.skip();
        if (!lines.atEnd() && basic::equalNoCase(firstWordOf(lines.peek()), "Begin"))
            parts.balanced = skipBeginBlock(lines);
    }
    const auto designer = lines.taken();
    while (!lines.atEnd() && isAttributeLine(lines.peek())) lines.skip();
    parts.designer = bytes.substr(0, designer);
    parts.attributes = bytes.substr(designer, lines.taken() - designer);
    parts.code = bytes.substr(lines.taken());
    return parts;
}

std::optional<std::string_view> attributeValue(std::string_view attributes, std::string_view name) {
    LineEnd end = LineEnd::None;
    while (!attributes.empty()) {
        auto line = takeLine(attributes, end);
        if (!isAttributeLine(line)) continue;
        line.remove_prefix(kAttribute.size());
        const auto equals = line.find('=');
        if (equals == std::string_view::npos || !basic::equalNoCase(trimBlanks(line.substr(0, equals)), name)) continue;
        return unquoted(trimBlanks(line.substr(equals + 1)));
    }
    return {};
}

CodeText::CodeText(std::string_view code, basic::CodePage codePage, LineEnd ownEnd)
    : codePage_(std::move(codePage)), ownEnd_(ownEnd), lines_(splitLines(code)) {}

const std::vector<std::uint32_t>& CodeText::shown() const {
    if (counted_) return shown_;
    shown_.clear();
    for (std::size_t i = 0; i < lines_.size(); ++i)
        if (!isHiddenLine(lines_[i].text)) shown_.push_back(std::uint32_t(i));
    counted_ = true;
    return shown_;
}

std::string CodeText::line(std::size_t line) const { return codePage_.decode(lines_[shown().at(line - 1)].text); }

std::size_t CodeText::physicalLine(std::size_t line) const {
    const auto& shown = this->shown();
    if (line == 0) return 0;
    if (line <= shown.size()) return shown[line - 1] + 1;
    return lines_.size() + (line - shown.size());
}

std::size_t CodeText::windowLine(std::size_t physical) const {
    const auto& shown = this->shown();
    const auto above = std::upper_bound(shown.begin(), shown.end(), physical - 1, std::less<std::size_t>());
    const auto beyond = physical > lines_.size() ? physical - lines_.size() : 0;
    return std::size_t(above - shown.begin()) + beyond;
}

std::vector<TextLine> CodeText::encoded(std::string_view text) const {
    auto lines = splitLines(codePage_.encode(text));
    if (lines.empty()) lines.emplace_back();
    for (auto& line : lines) line.end = ownEnd_;
    return lines;
}

void CodeText::insert(std::size_t line, std::string_view text) {
    auto lines = encoded(text);
    const bool append = line > count();
    const auto at = append ? lines_.size() : shown()[line - 1];
    if (append && !lines_.empty() && lines_.back().end == LineEnd::None) lines_.back().end = ownEnd_;
    lines_.insert(lines_.begin() + std::ptrdiff_t(at), std::make_move_iterator(lines.begin()),
                  std::make_move_iterator(lines.end()));
    counted_ = false;
}

void CodeText::remove(std::size_t line, std::size_t count) {
    if (count == 0) return;
    const auto first = shown().at(line - 1);
    const auto next = line + count - 1;
    const auto last = next < shown().size() ? shown()[next] : lines_.size();
    lines_.erase(lines_.begin() + std::ptrdiff_t(first), lines_.begin() + std::ptrdiff_t(last));
    counted_ = false;
}

void CodeText::replace(std::size_t line, std::string_view text) {
    auto lines = encoded(text);
    const auto at = shown().at(line - 1);
    lines.back().end = lines_[at].end;
    lines_[at] = std::move(lines.front());
    lines_.insert(lines_.begin() + std::ptrdiff_t(at) + 1, std::make_move_iterator(lines.begin() + 1),
                  std::make_move_iterator(lines.end()));
    counted_ = false;
}

void CodeText::nameAttributes(std::size_t line, std::string_view member) {
    const auto name = codePage_.encode(member);
    auto at = std::size_t(shown().at(line - 1));
    const auto isContinued = [this](std::size_t i) { return lines_[i].text.ends_with(" _"); };
    while (at + 1 < lines_.size() && isContinued(at) && !isHiddenLine(lines_[at + 1].text)) ++at;
    while (++at < lines_.size() && isHiddenLine(lines_[at].text)) {
        auto& text = lines_[at].text;
        const auto point = text.find('.');
        if (point < text.find("VB_")) text.replace(kAttribute.size(), point - kAttribute.size(), name);
    }
}

} // namespace host
