#include "Components/Tamarik/format/format.h"
#include "Components/Tamarik/format/number_picture.h"
#include "Components/Tamarik/format/picture.h"
#include "Components/Tamarik/format/text_picture.h"
#include "Components/Tamarik/text/letters.h"
#include <algorithm>
#include <iterator>

namespace tamarik {

namespace {

struct NamedFormat {
    std::u16string_view name, format;
};

constexpr NamedFormat kNamedFormats[] = {
    {u"general date", u"c"},
    {u"long date", u"dddddd"},
    {u"medium date", u"dd-mmm-yy"},
    {u"short date", u"ddddd"},
    {u"long time", u"ttttt"},
    {u"medium time", u"hh:nn AM/PM"},
    {u"short time", u"hh:nn"},
    {u"currency", u"$#,##0.00;($#,##0.00)"},
    {u"fixed", u"0.00"},
    {u"standard", u"#,##0.00"},
    {u"percent", u"0.00%"},
    {u"scientific", u"0.00E+00"},
    {u"yes/no", u"\"Yes\";\"Yes\";\"No\""},
    {u"true/false", u"\"True\";\"True\";\"False\""},
    {u"on/off", u"\"On\";\"On\";\"Off\""},
};
constexpr std::u16string_view kGeneralNumber = u"general number";

std::u16string_view userDefined(std::u16string_view format, std::u16string_view folded) {
    const auto* const found = std::find_if(std::begin(kNamedFormats), std::end(kNamedFormats),
                                           [&](const NamedFormat& named) { return named.name == folded; });
    return found == std::end(kNamedFormats) ? format : found->format;
}

std::u16string formatNull(const std::vector<Picture>& sections, PictureKind kind) {
    constexpr std::size_t kNullSection = 3;
    if (kind == PictureKind::Text) return sections.size() > 1 ? formatText({}, sections) : u"";
    if (sections.size() <= kNullSection) return {};
    return formatNumber({}, {sections[kNullSection]});
}

} // namespace

std::u16string Format(const FormatValue& value, std::u16string_view format, WeekRules rules, Date today) {
    const bool isNull = value.kind() == FormatValue::Kind::Null;
    const std::u16string folded = fold(format);
    if (format.empty()) return value.text();
    if (folded == kGeneralNumber) return value.generalText();
    const auto picture = userDefined(format, folded);
    const auto sections = sectionsOf(picture);
    const PictureKind kind = kindOf(sections);
    if (isNull) return formatNull(sections, kind);
    if (kind == PictureKind::Text) return formatText(value.text(), sections);
    if (kind == PictureKind::Date) {
        const auto date = value.date(today);
        return date ? formatDate(*date, sections[0], rules) : value.text();
    }
    const auto number = value.number();
    if (number) return formatNumber(*number, sections);
    // Literal characters are a format for every text, but those of Yes/No are for numbers.
    return kind == PictureKind::Literal && picture == format ? formatText(value.text(), sections) : value.text();
}

} // namespace tamarik
