#include "Basic/code_page.h"
#include "Basic/double_byte.h"
#include "Basic/runtime_error.h"
#include "Basic/tables/code_page_table.h"
#include "Basic/utf8.h"
#include <algorithm>
#include <array>

namespace basic {

namespace {

/// Null for an unknown page.
const CodePageName* nameOf(int number) noexcept {
    const auto* const found = std::find_if(std::begin(kCodePageNames), std::end(kCodePageNames),
                                           [&](const CodePageName& known) { return known.number == number; });
    return found == std::end(kCodePageNames) ? nullptr : found;
}

const CodePageTable* tableOf(const CodePageName* page) noexcept {
    if (!page->hasTable) return nullptr;
    return kCodePageTables + std::count_if(std::begin(kCodePageNames), page, [](const auto& p) { return p.hasTable; });
}

/// The characters 80 to 9F of Windows-1252; all others are those of Latin-1.
constexpr std::array<char16_t, 32> k1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct Page1252 {
    static char32_t next(std::string_view bytes, std::size_t& at) noexcept {
        const auto byte = static_cast<unsigned char>(bytes[at++]);
        return byte >= 0x80 && byte <= 0x9F ? k1252[byte - 0x80U] : char32_t{byte};
    }
    static bool append(std::string& bytes, char32_t character) {
        if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
            bytes += static_cast<char>(character);
            return true;
        }
        const auto* const found = std::find(k1252.begin(), k1252.end(), character);
        if (found == k1252.end()) return false;
        bytes += static_cast<char>(0x80 + (found - k1252.begin()));
        return true;
    }
};

/// UTF-8 with a private-use character for each byte that is not part of a character, and for each byte of such a
/// private-use character in the input.
struct PageUtf8 {
    static char32_t next(std::string_view bytes, std::size_t& at) noexcept {
        const std::size_t first = at;
        const char32_t character = nextCharacter(bytes, at);
        if (character != kNoCharacter && !standsForByte(character)) return character;
        at = first + 1;
        return kBytePlane + static_cast<unsigned char>(bytes[first]);
    }
    static bool append(std::string& bytes, char32_t character) {
        if (standsForByte(character))
            bytes += static_cast<char>(character & 0xFF);
        else
            appendCharacter(bytes, character);
        return true;
    }
};

template <class Page>
std::string decodeBytes(const Page& page, std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t run = asciiRun(bytes, at);
        text.append(bytes, at, run);
        at += run;
        if (at < bytes.size()) appendCharacter(text, page.next(bytes, at));
    }
    return text;
}

template <class Page>
std::optional<std::string> encodeText(const Page& page, std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t run = asciiRun(text, at);
        bytes.append(text, at, run);
        at += run;
        if (at == text.size()) break;
        const char32_t character = nextCharacter(text, at);
        if (character == kNoCharacter || !page.append(bytes, character)) return std::nullopt;
    }
    return bytes;
}

} // namespace

bool CodePage::isKnown(int number) noexcept { return nameOf(number) != nullptr; }

std::span<const CodePageName> CodePage::all() noexcept { return kCodePageNames; }

bool CodePage::isDoubleByte(int number) noexcept {
    return std::find(kDoubleBytePages.begin(), kDoubleBytePages.end(), number) != kDoubleBytePages.end();
}

CodePage::CodePage(int number) : number_(number) {
    const auto* const name = nameOf(number);
    if (!name) throw RuntimeError(kInvalidProcedureCall);
    table_ = tableOf(name);
}

std::string CodePage::decode(std::string_view bytes) const {
    if (table_) return decodeBytes(*table_, bytes);
    return number_ == kUtf8Page ? decodeBytes(PageUtf8{}, bytes) : decodeBytes(Page1252{}, bytes);
}

std::optional<std::string> CodePage::tryEncode(std::string_view utf8) const {
    if (table_) return encodeText(*table_, utf8);
    return number_ == kUtf8Page ? encodeText(PageUtf8{}, utf8) : encodeText(Page1252{}, utf8);
}

std::string CodePage::replaceMissing(std::string_view utf8) const {
    if (tryEncode(utf8)) return std::string(utf8);
    std::string text;
    for (std::size_t at = 0; at < utf8.size();) {
        const auto from = at;
        nextCharacter(utf8, at);
        const auto character = utf8.substr(from, at - from);
        text += tryEncode(character) ? character : "?";
    }
    return text;
}

std::string CodePage::encode(std::string_view utf8) const {
    if (auto bytes = tryEncode(utf8)) return *std::move(bytes);
    throw RuntimeError(kInvalidProcedureCall);
}

} // namespace basic
