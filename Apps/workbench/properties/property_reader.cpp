#include "Apps/workbench/properties/property_reader.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/form_colours.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/property_source.h"
#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr double kPixelsPerInch = 96, kPixelsPerInchOfPalms = 72, kPointsPerInch = 72;
constexpr double kUsualPoints = 8.25, kMostPoints = 500;
constexpr int kLargestPicture = 16 * 1024 * 1024;
constexpr int kBoldStyle = 1, kItalicStyle = 2;
constexpr auto kUsualFamily = "MS Sans Serif", kPalmFamily = "QLPalm";

/// The fonts of forms are seldom installed; the alternatives have about the same width.
QFont fontOfFamily(const QString& family, double points) {
    const bool ofPalms = family.compare(kPalmFamily, Qt::CaseInsensitive) == 0;
    const double pixelsPerInch = ofPalms ? kPixelsPerInchOfPalms : kPixelsPerInch;
    QFont font;
    font.setFamilies({family.isEmpty() ? QString(kUsualFamily) : family, ofPalms ? "DejaVu Sans Condensed" : "Tahoma",
                      "Liberation Sans", "Arial"});
    const double size = points > 0 && points <= kMostPoints ? points : kUsualPoints;
    font.setPixelSize(std::max(1, int(std::lround(size * pixelsPerInch / kPointsPerInch))));
    return font;
}

} // namespace

fernwick::Variant PropertyReader::value(const char* name) const {
    fernwick::Variant value;
    (void)basic::attempt([&] { value = properties_->Item(name)->Value(); });
    return value;
}

bool PropertyReader::has(const char* name) const {
    return basic::attempt([&] { (void)properties_->Item(name); }).Number == 0;
}

QString PropertyReader::text(const char* name) const { return qt(fernwick::asText(value(name))); }

int PropertyReader::number(const char* name, int fallback) const {
    int number = fallback;
    const auto found = value(name);
    if (!std::holds_alternative<std::monostate>(found)) (void)basic::attempt([&] { number = fernwick::asLong(found); });
    return number;
}

double PropertyReader::real(const char* name, double fallback) const {
    double number = fallback;
    const auto found = value(name);
    if (!std::holds_alternative<std::monostate>(found))
        (void)basic::attempt([&] { number = fernwick::asDouble(found); });
    return std::isfinite(number) ? number : fallback;
}

bool PropertyReader::flag(const char* name, bool fallback) const {
    bool flag = fallback;
    const auto found = value(name);
    if (!std::holds_alternative<std::monostate>(found))
        (void)basic::attempt([&] { flag = fernwick::asBoolean(found); });
    return flag;
}

QColor PropertyReader::colour(const char* name, const QColor& fallback) const {
    QColor colour = fallback;
    const auto found = value(name);
    if (!std::holds_alternative<std::monostate>(found))
        (void)basic::attempt([&] { colour = formColour(fernwick::asLong(found)); });
    return colour;
}

QFont PropertyReader::font() const {
    auto font = fontOfFamily({}, 0);
    (void)basic::attempt([&] {
        const PropertyReader members(properties_->Item("Font")->ObjectValue());
        font = fontOfFamily(members.text("Name"), members.real("Size"));
        font.setBold(members.flag("Bold"));
        font.setItalic(members.flag("Italic"));
        font.setUnderline(members.flag("Underline"));
        font.setStrikeOut(members.flag("Strikethrough"));
    });
    return font;
}

QFont PropertyReader::deviceFont() const {
    auto font = fontOfFamily(text("FontName"), real("FontSize"));
    font.setBold((number("FontStyle") & kBoldStyle) != 0);
    font.setItalic((number("FontStyle") & kItalicStyle) != 0);
    return font;
}

QPixmap PropertyReader::picture(const char* name) const {
    QPixmap picture;
    (void)basic::attempt([&] {
        const auto image = host::imageOf(properties_->Item(name));
        if (image.size() <= kLargestPicture)
            picture.loadFromData(reinterpret_cast<const uchar*>(image.data()), uint(image.size()));
    });
    return picture;
}

bool PropertyReader::hasPicture(const char* name) const {
    bool has = false;
    (void)basic::attempt([&] { has = !host::imageOf(properties_->Item(name)).empty(); });
    return has;
}

QStringList PropertyReader::items(const char* name) const {
    QStringList items;
    (void)basic::attempt([&] {
        for (const auto& item : host::itemsOf(properties_->Item(name))) items << qt(item);
    });
    return items;
}

} // namespace workbench
