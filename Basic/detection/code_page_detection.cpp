#include "Basic/detection/code_page_detection.h"
#include "Basic/tables/character_table.h"
#include "Basic/utf8.h"
#include <algorithm>
#include <charconv>
#include <span>

namespace basic {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr int kKoreanPage = 949;
constexpr std::size_t kMostNames = 64 * 1024;

/// The LOGFONT character sets with a code page of their own.
constexpr std::pair<int, int> kPageOfCharset[] = {{0, 1252},   {128, 932},  {129, 949},  {134, 936},  {136, 950},
                                                  {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256},
                                                  {186, 1257}, {204, 1251}, {222, 874},  {238, 1250}};

enum class Utf8 { No, Ascii, Short, Sure };

/// Two bytes are often valid both as an ideograph of a double-byte page and as a UTF-8 sequence, three bytes rarely.
Utf8 utf8Of(std::string_view bytes) noexcept {
    if (bytes.starts_with(kByteOrderMark)) return Utf8::Sure;
    char32_t largest = 0;
    for (std::size_t at = asciiRun(bytes, 0); at < bytes.size(); at += asciiRun(bytes, at)) {
        const char32_t character = nextCharacter(bytes, at);
        if (character == kNoCharacter) return Utf8::No;
        largest = std::max(largest, character);
    }
    return largest == 0 ? Utf8::Ascii : largest < 0x800 ? Utf8::Short : Utf8::Sure;
}

/// Returns the largest count's page among those that satisfy `fits`.
template <class F>
std::optional<int> mostFrequent(const std::map<int, std::size_t>& counts, F&& fits) {
    std::optional<int> page;
    std::size_t most = 0;
    for (const auto& [candidate, count] : counts)
        if (count > most && fits(candidate)) {
            page = candidate;
            most = count;
        }
    return page;
}

/// Returns the number of a line "Charset = 128 'SHIFTJIS".
std::optional<int> charsetOf(std::string_view line) {
    constexpr std::string_view kBlanks = " \t", kKey = "Charset";
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    if (!line.starts_with(kKey)) return {};
    const auto equals = line.find_first_not_of(kBlanks, kKey.size());
    if (equals == line.npos || line[equals] != '=') return {};
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks, equals + 1), line.size()));
    int number = 0;
    const auto read = std::from_chars(line.data(), line.data() + line.size(), number);
    return read.ec == std::errc{} ? std::optional(number) : std::nullopt;
}

/// The pages of scripts without Latin letters, whose words consist of high bytes only.
bool isForeignScript(int page) noexcept {
    constexpr int kPages[] = {874, 1251, 1253, 1255, 1256};
    return std::find(std::begin(kPages), std::end(kPages), page) != std::end(kPages);
}

bool isHigh(char c) { return static_cast<unsigned char>(c) >= 0x80; }

/// The second byte of a two-byte character may be any of these, too.
bool continuesName(char c) { return static_cast<unsigned char>(c) >= 0x40 || (c >= '0' && c <= '9'); }

/// The share of letters among characters above 127.
struct Letters {
    std::size_t letters = 0, others = 0;
    bool most() const { return others * 2 <= letters; }
    bool few() const { return others * 4 > letters; }
};

Letters lettersOf(std::string_view names, const CodePage& page) {
    constexpr char32_t kWideBlank = 0x3000;
    Letters count;
    const std::string text = page.decode(names);
    for (std::size_t at = asciiRun(text, 0); at < text.size(); at += asciiRun(text, at)) {
        const char32_t character = nextCharacter(text, at);
        if (character == kWideBlank) continue;
        ++(isLetter(character) ? count.letters : count.others);
    }
    return count;
}

/// Returns the likely page that fits best; null if there is none or two fit alike.
const DoubleByteCount* bestOf(std::span<const DoubleByteCount> counts, std::size_t least) {
    constexpr std::size_t kEnoughForKorean = 16;
    const DoubleByteCount* best = nullptr;
    bool tied = false;
    for (const auto& count : counts) {
        if (!count.isLikely(least)) continue;
        // All Hangul are usual characters in 936, too, but Chinese text is not restricted to these.
        if (count.page() == kKoreanPage && count.characters() >= kEnoughForKorean) return &count;
        tied = best && !count.fitsBetterThan(*best) && !best->fitsBetterThan(count);
        if (!best || count.fitsBetterThan(*best)) best = &count;
    }
    return tied ? nullptr : best;
}

} // namespace

CodePage codePageOfFile(std::string_view bytes, const CodePage& usual) {
    const auto utf8 = utf8Of(bytes);
    const bool isUtf8 = utf8 == Utf8::Sure || (utf8 == Utf8::Short && !usual.isDoubleByte());
    return isUtf8 ? CodePage(kUtf8Page) : usual;
}

void CodePageEvidence::addFile(std::string_view bytes) {
    addCharsets(bytes);
    switch (utf8Of(bytes)) {
    case Utf8::Ascii: return;
    case Utf8::Sure: utf8_ = true; return;
    case Utf8::Short: shortUtf8_ = true; return;
    case Utf8::No: legacy_ = true;
    }
    for (auto& count : counts_) count.add(bytes);
    addRuns(bytes);
    addNames(bytes);
}

void CodePageEvidence::addRuns(std::string_view bytes) {
    for (std::size_t at = asciiRun(bytes, 0); at < bytes.size(); at += asciiRun(bytes, at)) {
        const auto begin = at;
        while (at < bytes.size() && isHigh(bytes[at])) ++at;
        highBytes_ += at - begin;
        if (at - begin > 1) highBytesInRuns_ += at - begin;
    }
}

void CodePageEvidence::key(int page) {
    if (CodePage::isKnown(page)) key_ = page;
}

void CodePageEvidence::addCharsets(std::string_view bytes) {
    if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
    if (!bytes.starts_with("VERSION")) return;
    bytes = bytes.substr(0, bytes.find("\nAttribute VB_"));
    while (!bytes.empty()) {
        const auto end = std::min(bytes.find('\n'), bytes.size() - 1);
        const auto number = charsetOf(bytes.substr(0, end));
        bytes.remove_prefix(end + 1);
        for (const auto& [charset, page] : kPageOfCharset)
            if (number == charset) ++charsets_[page];
    }
}

void CodePageEvidence::addNames(std::string_view bytes) {
    bool inString = false, inComment = false;
    for (std::size_t at = 0; at < bytes.size() && names_.size() < kMostNames; ++at) {
        const char c = bytes[at];
        if (c == '\n' || c == '\r') inString = inComment = false;
        if (c == '"') inString = !inString;
        if (c == '\'' && !inString) inComment = true;
        if (inString || inComment || !isHigh(c)) continue;
        const auto begin = at;
        while (at < bytes.size() && continuesName(bytes[at])) ++at;
        names_.append(bytes, begin, at - begin).push_back('\n');
        --at;
    }
}

bool CodePageEvidence::decodes(int page) const {
    return std::all_of(counts_.begin(), counts_.end(),
                       [&](const DoubleByteCount& count) { return count.page() != page || count.decodes(); });
}

/// Fonts with a foreign character set also come with single forms and controls of other authors.
bool CodePageEvidence::explains(int page) const {
    constexpr std::size_t kMostWesternFonts = 10;
    if (page == 1252) return false;
    if (CodePage::isDoubleByte(page)) return decodes(page);
    if (isForeignScript(page) && highBytes_ > 0) return highBytesInRuns_ * 2 >= highBytes_;
    const auto western = charsets_.find(1252);
    return western == charsets_.end() || charsets_.at(page) * kMostWesternFonts >= western->second;
}

std::optional<int> CodePageEvidence::pageOfCharsets() const {
    return mostFrequent(charsets_, [this](int page) { return explains(page); });
}

/// Names that are nonsense in the usual page are a strong sign, so that then a few characters are enough.
std::optional<int> CodePageEvidence::pageOfText() const {
    constexpr std::size_t kEnough = 8, kEnoughWithNames = 2;
    const std::size_t least = lettersOf(names_, CodePage::windows1252()).few() ? kEnoughWithNames : kEnough;
    const auto* const best = bestOf(counts_, least);
    if (!best || !lettersOf(names_, CodePage(best->page())).most()) return {};
    return best->page();
}

DetectedCodePage CodePageEvidence::detect() const {
    const auto taken = [this](int page, CodePageReason reason) {
        return DetectedCodePage{CodePage(page), reason, legacy_};
    };
    if (key_) return taken(*key_, CodePageReason::Key);
    const auto charset = pageOfCharsets();
    const bool mayBeShort = !charset || !CodePage::isDoubleByte(*charset);
    if (!legacy_ && (utf8_ || (shortUtf8_ && mayBeShort))) return taken(kUtf8Page, CodePageReason::Utf8);
    if (charset) return taken(*charset, CodePageReason::Charset);
    if (const auto page = mostFrequent(namesOnDisk_, [](int) { return true; }))
        return taken(*page, CodePageReason::FileNames);
    if (const auto page = legacy_ ? pageOfText() : std::nullopt) return taken(*page, CodePageReason::Text);
    return {CodePage::windows1252(), CodePageReason::Default, legacy_};
}

} // namespace basic
