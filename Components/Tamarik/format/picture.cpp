#include "Components/Tamarik/format/picture.h"
#include <algorithm>
#include <optional>

namespace tamarik {

namespace {

constexpr std::u16string_view kDigits = u"0#", kTexts = u"@&<>!", kNumberMarks = u".,%", kDateMarks = u":/";

/// The codes of dates, the longest first where one is the beginning of another.
constexpr std::u16string_view kDateCodes[] = {u"am/pm", u"ampm", u"a/p", u"aaaa", u"ttttt", u"dddddd", u"ddddd",
                                              u"dddd",  u"ddd",  u"dd",  u"d",    u"mmmm",  u"mmm",    u"mm",
                                              u"m",     u"yyyy", u"yy",  u"y",    u"hh",    u"h",      u"nn",
                                              u"n",     u"ss",   u"s",   u"ww",   u"w",     u"q",      u"c"};

char16_t smallLetter(char16_t unit) { return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit; }

bool startsWith(const Picture& picture, std::size_t at, std::u16string_view code) {
    if (picture.size() - at < code.size()) return false;
    return std::equal(
        code.begin(), code.end(), picture.begin() + static_cast<std::ptrdiff_t>(at),
        [](char16_t unit, const PictureUnit& part) { return !part.isLiteral && smallLetter(part.unit) == unit; });
}

bool isOneOf(const PictureUnit& part, std::u16string_view codes) {
    return !part.isLiteral && codes.find(part.unit) != codes.npos;
}

/// What a code is for, if it cannot be a literal character in a format of another kind.
std::optional<PictureKind> kindAt(const Picture& picture, std::size_t at) {
    if (isOneOf(picture[at], kDigits) || isExponentAt(picture, at)) return PictureKind::Number;
    if (isOneOf(picture[at], kTexts)) return PictureKind::Text;
    if (dateCodeAt(picture, at) > 0) return PictureKind::Date;
    return std::nullopt;
}

/// What a mark is for in a format without such codes.
std::optional<PictureKind> kindOfMark(const PictureUnit& part) {
    if (isOneOf(part, kNumberMarks)) return PictureKind::Number;
    if (isOneOf(part, kDateMarks)) return PictureKind::Date;
    return std::nullopt;
}

} // namespace

std::vector<Picture> sectionsOf(std::u16string_view format) {
    std::vector<Picture> sections(1);
    bool quoted = false;
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char16_t unit = format[i];
        if (unit == u'"')
            quoted = !quoted;
        else if (quoted)
            sections.back().push_back({unit, true});
        else if (unit == u'\\') {
            if (++i < format.size()) sections.back().push_back({format[i], true});
        } else if (unit == u';')
            sections.emplace_back();
        else
            sections.back().push_back({unit, false});
    }
    return sections;
}

PictureKind kindOf(const std::vector<Picture>& sections) {
    std::optional<PictureKind> marks;
    for (const auto& section : sections)
        for (std::size_t i = 0; i < section.size(); ++i) {
            if (const auto kind = kindAt(section, i)) return *kind;
            if (!marks) marks = kindOfMark(section[i]);
        }
    return marks.value_or(PictureKind::Literal);
}

std::size_t dateCodeAt(const Picture& picture, std::size_t at) {
    for (const auto& code : kDateCodes)
        if (startsWith(picture, at, code)) return code.size();
    return 0;
}

bool isExponentAt(const Picture& picture, std::size_t at) {
    if (!startsWith(picture, at, u"e+") && !startsWith(picture, at, u"e-")) return false;
    return at + 2 < picture.size() && isOneOf(picture[at + 2], kDigits);
}

} // namespace tamarik
