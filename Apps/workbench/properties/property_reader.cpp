#include "Apps/workbench/properties/property_reader.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/form_colours.h"
#include "Apps/workbench/properties/form_fonts.h"
#include "Apps/workbench/properties/picture_formats.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/property_source.h"
#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr int kBoldStyle = 1, kItalicStyle = 2;

} // namespace

fernwick::Variant PropertyReader::value(const std::string& name) const {
    fernwick::Variant value;
    (void)basic::attempt([&] { value = properties_->Item(name)->Value(); });
    return value;
}

bool PropertyReader::has(const std::string& name) const {
    return basic::attempt([&] { (void)properties_->Item(name); }).Number == 0;
}

QString PropertyReader::text(const std::string& name) const { return qt(fernwick::asText(value(name))); }

int PropertyReader::number(const std::string& name, int fallback) const {
    int number = fallback;
    const auto found = value(name);
    if (!std::holds_alternative<std::monostate>(found)) (void)basic::attempt([&] { number = fernwick::asLong(found); });
    return number;
}

double PropertyReader::real(const std::string& name, double fallback) const {
    double number = fallback;
    const auto found = value(name);
    if (!std::holds_alternative<std::monostate>(found))
        (void)basic::attempt([&] { number = fernwick::asDouble(found); });
    return std::isfinite(number) ? number : fallback;
}

bool PropertyReader::flag(const std::string& name, bool fallback) const {
    bool flag = fallback;
    const auto found = value(name);
    if (!std::holds_alternative<std::monostate>(found))
        (void)basic::attempt([&] { flag = fernwick::asBoolean(found); });
    return flag;
}

QColor PropertyReader::colour(const std::string& name, const QColor& fallback) const {
    QColor colour = fallback;
    const auto found = value(name);
    if (!std::holds_alternative<std::monostate>(found))
        (void)basic::attempt([&] { colour = formColour(fernwick::asLong(found)); });
    return colour;
}

QFont PropertyReader::font() const {
    auto font = formFont({}, 0);
    (void)basic::attempt([&] {
        const PropertyReader members(properties_->Item("Font")->ObjectValue());
        font = formFont(members.text("Name"), members.real("Size"));
        font.setBold(members.flag("Bold"));
        font.setItalic(members.flag("Italic"));
        font.setUnderline(members.flag("Underline"));
        font.setStrikeOut(members.flag("Strikethrough"));
    });
    return font;
}

QFont PropertyReader::deviceFont() const {
    auto font = formFont(text("FontName"), real("FontSize"));
    font.setBold((number("FontStyle") & kBoldStyle) != 0);
    font.setItalic((number("FontStyle") & kItalicStyle) != 0);
    return font;
}

QPixmap PropertyReader::picture(const std::string& name) const {
    QPixmap picture;
    (void)basic::attempt([&] { picture = drawnPicture(host::imageOf(properties_->Item(name))); });
    return picture;
}

bool PropertyReader::hasPicture(const std::string& name) const {
    bool has = false;
    (void)basic::attempt([&] { has = !host::imageOf(properties_->Item(name)).empty(); });
    return has;
}

QStringList PropertyReader::items(const std::string& name) const {
    QStringList items;
    (void)basic::attempt([&] {
        for (const auto& item : host::itemsOf(properties_->Item(name))) items << qt(item);
    });
    return items;
}

std::optional<PropertyReader> PropertyReader::group(const std::string& name) const {
    vbide::Ref<vbide::Properties> members;
    (void)basic::attempt([&] { members = properties_->Item(name)->ObjectValue(); });
    return members ? std::optional<PropertyReader>(members) : std::nullopt;
}

} // namespace workbench
