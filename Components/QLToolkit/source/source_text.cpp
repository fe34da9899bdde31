#include "Components/QLToolkit/source/source_text.h"
#include "Basic/detection/code_page_detection.h"
#include "Components/QLToolkit/source/byte_block.h"
#include "Components/QLToolkit/source/encoding.h"
#include <algorithm>
#include <array>

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

bool isOddControl(char c) {
    const auto u = static_cast<unsigned char>(c);
    return (u < 32 && u != 0 && (u < 9 || u > 13) && u != 26) || u == 127;
}

// Text contains tabs and line ends, and occasionally form feeds, NULs or Ctrl+Z, but hardly any other control
// characters.
bool looksBinary(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) return true;
    const auto sample = bytes.substr(0, 8192);
    std::ptrdiff_t odd = 0;
    for (std::size_t at = 0; at < sample.size(); at += kBlockBytes) {
        const ByteBlock block{bytes.data() + at};
        const auto controls = (block.unusual() & ~block.beyondAscii()) | block.equal('\x7F');
        if ((controls & ~(block.equal('\r') | block.equal('\n'))) == 0) continue;
        const auto part = sample.substr(at, kBlockBytes);
        odd += std::count_if(part.begin(), part.end(), isOddControl);
    }
    return odd > static_cast<std::ptrdiff_t>(sample.size() / 64);
}

/// Fills the vector without a check for each line.
class LineStarts {
public:
    LineStarts(std::vector<Pos>& starts, Pos sourceBytes) : starts_(starts) {
        constexpr Pos kTypicalLine = 24;
        resize(sourceBytes / kTypicalLine + 2 * kBlockBytes);
        add(0);
    }
    ~LineStarts() { starts_.resize(count()); }
    LineStarts(const LineStarts&) = delete;

    // Makes room for as many lines as a block can end, and the end of the file.
    void reserveBlock() {
        if (end_ - next_ <= static_cast<std::ptrdiff_t>(kBlockBytes)) [[unlikely]]
            resize(starts_.size() * 2);
    }
    void add(Pos start) { *next_++ = start; }
    // Without a branch.
    void addIf(bool really, Pos start) {
        *next_ = start;
        next_ += really;
    }
    Pos last() const { return next_[-1]; }

private:
    std::size_t count() const { return static_cast<std::size_t>(next_ - starts_.data()); }
    void resize(std::size_t size) {
        const std::size_t used = next_ ? count() : 0;
        starts_.resize(size);
        next_ = starts_.data() + used;
        end_ = starts_.data() + size;
    }

    std::vector<Pos>& starts_;
    Pos* next_ = nullptr;
    Pos* end_ = nullptr;
};

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
    bytes_.append(kPadding, '\0');
    binary_ = looksBinary(text(0, size_));
    const bool ascii = splitLines();
    if (!ascii) page_ = basic::codePageOfFile(text(0, size_), page_);
    findCode();
}

// Reads the file once for all that depends on single bytes. Returns true if all of them are ASCII.
bool SourceText::splitLines() {
    const char* const base = data();
    LineStarts starts{lineStarts_, size_};
    std::uint32_t beyondAscii = 0;
    for (Pos at = 0; at < size_; at += kBlockBytes) {
        const ByteBlock block{base + at};
        beyondAscii |= block.beyondAscii();
        auto ends = block.lineEnds(base + at);
        starts.reserveBlock();
        starts.addIf(ends != 0, at + bytesBefore(ends) + 1); // few blocks have more, and none is as frequent as one
        for (ends &= ends - 1; ends != 0; ends &= ends - 1) starts.add(at + bytesBefore(ends) + 1);
    }
    if (starts.last() != size_) starts.add(size_);
    return beyondAscii == 0;
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
