#include "Components/QLToolkit/source/source_text.h"
#include "Basic/detection/code_page_detection.h"
#include "Components/QLToolkit/source/encoding.h"
#include <algorithm>
#include <array>
#include <cstring>

namespace qltoolkit {

namespace {

char asciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; }

bool equalWords(std::string_view a, std::string_view lower) {
    return a.size() == lower.size() &&
           std::equal(a.begin(), a.end(), lower.begin(), [](char x, char y) { return asciiLower(x) == y; });
}

std::string_view firstWord(std::string_view line) {
    const auto begin = line.find_first_not_of(" \t");
    if (begin == std::string_view::npos) return {};
    const auto end = line.find_first_of(" \t=(", begin);
    return line.substr(begin, end == std::string_view::npos ? end : end - begin);
}

bool isAttributeLine(std::string_view line) { return line.size() > 10 && equalWords(line.substr(0, 10), "attribute "); }

// Text contains tabs and line ends, and occasionally form feeds, NULs or Ctrl+Z, but hardly any other control
// characters.
bool looksBinary(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) return true;
    const auto sample = bytes.substr(0, 8192);
    const auto odd = std::count_if(sample.begin(), sample.end(), [](char c) {
        const auto u = static_cast<unsigned char>(c);
        return (u < 32 && u != 0 && (u < 9 || u > 13) && u != 26) || u == 127;
    });
    return odd > static_cast<std::ptrdiff_t>(sample.size() / 64);
}

} // namespace

FileKind fileKindOf(std::string_view path) {
    const auto dot = path.rfind('.');
    if (dot == std::string_view::npos) return FileKind::Unknown;
    static constexpr std::array<std::pair<std::string_view, FileKind>, 7> kKinds{{{"bas", FileKind::Module},
                                                                                  {"cls", FileKind::Class},
                                                                                  {"frm", FileKind::Form},
                                                                                  {"ctl", FileKind::UserControl},
                                                                                  {"pag", FileKind::PropertyPage},
                                                                                  {"dsr", FileKind::Designer},
                                                                                  {"dob", FileKind::UserDocument}}};
    for (const auto& [extension, kind] : kKinds)
        if (equalWords(path.substr(dot + 1), extension)) return kind;
    return FileKind::Unknown;
}

SourceText::SourceText(std::string name, std::string bytes, basic::CodePage page)
    : name_(std::move(name)),
      bytes_(std::move(bytes)),
      size_(static_cast<Pos>(bytes_.size())),
      kind_(fileKindOf(name_)),
      page_(std::move(page)) {
    binary_ = looksBinary(bytes_);
    page_ = basic::codePageOfFile(bytes_, page_);
    bytes_.append(kPadding, '\0');
    splitLines();
    findCode();
}

void SourceText::splitLines() {
    const char* const base = data();
    lineStarts_.reserve(size_ / 24 + 2);
    lineStarts_.push_back(0);
    for (Pos at = 0; at < size_;) {
        const auto* feed = static_cast<const char*>(std::memchr(base + at, '\n', size_ - at));
        const Pos stop = feed ? static_cast<Pos>(feed - base) : size_;
        while (at < stop) {
            const auto* cr = static_cast<const char*>(std::memchr(base + at, '\r', stop - at));
            if (!cr || cr + 1 == base + stop) break;
            at = static_cast<Pos>(cr - base) + 1;
            lineStarts_.push_back(at);
        }
        if (!feed) break;
        at = stop + 1;
        lineStarts_.push_back(at);
    }
    if (lineStarts_.back() != size_) lineStarts_.push_back(size_);
}

std::string_view SourceText::line(std::uint32_t number) const {
    Pos end = lineStart(number + 1);
    const Pos begin = lineStart(number);
    if (end > begin && data()[end - 1] == '\n') --end;
    if (end > begin && data()[end - 1] == '\r') --end;
    return text(begin, end);
}

std::uint32_t SourceText::lineOf(Pos at) const {
    const auto after = std::upper_bound(lineStarts_.begin(), lineStarts_.end() - 1, at);
    return std::max<std::uint32_t>(1, static_cast<std::uint32_t>(after - lineStarts_.begin()));
}

Location SourceText::locate(Pos at) const {
    const auto number = lineOf(at);
    const auto before = text(lineStart(number), at);
    const bool ascii =
        std::all_of(before.begin(), before.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
    if (ascii) return {number, static_cast<std::uint32_t>(before.size()) + 1};
    std::uint32_t column = 1;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const auto byte = static_cast<unsigned char>(before[i]);
        if (page_.number() == kUtf8Page && (byte & 0xC0) == 0x80) continue;
        if (isLeadByte(byte)) ++i;
        ++column;
    }
    return {number, column};
}

// Every file has this order: VERSION, Object lines, one balanced block, then Attribute lines at column 0.
void SourceText::findCode() {
    std::uint32_t at = 1;
    const auto last = lineCount();
    const auto word = [&](std::uint32_t n) { return firstWord(line(n)); };
    if (size_ >= 3 && text(0, 3) == "\xEF\xBB\xBF") lineStarts_.front() = 3;
    if (at <= last && equalWords(word(at), "version")) {
        header_ = HeaderState::Complete;
        do { ++at; } while (at <= last && (equalWords(word(at), "object") || word(at).empty()));
        if (at <= last && equalWords(word(at), "begin")) at = skipBlock(at);
    }
    attributesBegin_ = at;
    while (at <= last && isAttributeLine(line(at))) ++at;
    codeBegin_ = at;
}

std::uint32_t SourceText::skipBlock(std::uint32_t begin) {
    headerBlock_ = begin;
    std::size_t depth = 0;
    for (auto at = begin; at <= lineCount(); ++at) {
        const auto word = firstWord(line(at));
        if (equalWords(word, "begin") || equalWords(word, "beginproperty")) {
            if (++depth > kDeepestHeaderBlock) return headerTooDeep(at);
        } else if ((equalWords(word, "end") || equalWords(word, "endproperty")) && --depth == 0)
            return at + 1;
    }
    header_ = HeaderState::Unclosed;
    return lineCount() + 1;
}

std::uint32_t SourceText::headerTooDeep(std::uint32_t at) {
    header_ = HeaderState::TooDeep;
    headerBlock_ = at;
    return lineCount() + 1;
}

std::string SourceText::decode(std::string_view bytes) const { return page_.decode(bytes); }

bool SourceText::isLeadByte(unsigned char byte) const { return basic::isLeadByte(page_.number(), byte); }

} // namespace qltoolkit
