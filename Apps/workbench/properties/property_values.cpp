#include "Apps/workbench/properties/property_values.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/form_colours.h"
#include "Apps/workbench/properties/picture_formats.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Host/files/property_value.h"
#include "Host/model/code/menu_shortcuts.h"
#include <array>
#include <string_view>

namespace workbench {

namespace {

using host::PropertyKind;

constexpr int kNoIndex = -1;
constexpr std::array<std::string_view, 2> kSizes{"Width", "Height"};
constexpr std::array<std::string_view, 2> kLists{"List", "ItemData"};
constexpr auto kNoShortcut = "(None)";

template <std::size_t N>
bool isAmong(const std::array<std::string_view, N>& names, const std::string& name) {
    for (const auto candidate : names)
        if (basic::equalNoCase(candidate, name)) return true;
    return false;
}

QString shownChoice(const host::PropertyChoice& choice) {
    return QString("%1 - %2").arg(choice.value).arg(qt(choice.word));
}

QString shownTruth(bool value) { return value ? "True" : "False"; }

QString shownEnumeration(const host::ClassProperty& details, const fernwick::Variant& value) {
    const auto text = fernwick::asText(value);
    for (const auto& choice : details.choices())
        if (std::to_string(choice.value) == text) return shownChoice(choice);
    return qt(text);
}

QString shownShortcut(const std::string& literal) {
    return literal.empty() ? QString(kNoShortcut) : qt(host::shortcutText(literal));
}

bool isBoolean(const host::ClassProperty& details, const fernwick::Variant& value) {
    return details.kind == PropertyKind::Boolean || std::holds_alternative<bool>(value);
}

/// The data of a control of another library, which only that library can change.
bool isResource(const QString& shown) {
    return host::parsePropertyValue(text(shown)).kind == host::PropertyValue::Kind::Resource;
}

[[noreturn]] void refuseValue() { throw basic::RuntimeError(basic::kInvalidPropertyValue); }

/// Accepts "1 - Fixed Single", or only the part before or after the dash.
fernwick::Variant chosenValue(const host::ClassProperty& details, const QString& typed) {
    for (const auto& choice : details.choices())
        if (typed == shownChoice(choice) || typed == QString::number(choice.value) ||
            typed.compare(qt(choice.word), Qt::CaseInsensitive) == 0)
            return std::int32_t(choice.value);
    refuseValue();
}

fernwick::Variant sizeOrNumber(const std::string& name, const std::string& typed) {
    const auto number = fernwick::asDouble(typed);
    if (number < 0 && isAmong(kSizes, name)) refuseValue();
    return number;
}

/// A property without a description keeps the type of its previous value.
fernwick::Variant typedAsBefore(const fernwick::Variant& before, const std::string& typed) {
    if (std::holds_alternative<std::int32_t>(before)) return fernwick::asLong(typed);
    if (std::holds_alternative<double>(before)) return fernwick::asDouble(typed);
    return typed;
}

} // namespace

Chooser chooserOf(const host::ClassProperty& details, const QString& shown, bool hasLines) {
    if (details.kind == PropertyKind::Picture) return Chooser::Picture;
    if (details.kind == PropertyKind::Font) return Chooser::Font;
    if (details.showsColour()) return Chooser::Colour;
    if (isAmong(kLists, details.name)) return Chooser::Items;
    const bool isText = details.kind == PropertyKind::Text || details.kind == PropertyKind::LongText;
    const bool isLines = (hasLines && details.name == "Text") || details.name == "Items";
    return (isText && isLines) || shown.contains('\n') ? Chooser::Lines : Chooser::None;
}

QString shownValue(const host::ClassProperty& details, const vbide::Ref<vbide::Property>& property) {
    if (details.kind == PropertyKind::Picture) return shownPicture(host::imageOf(property));
    if (isAmong(kLists, details.name)) return "(List)";
    if (details.kind == PropertyKind::Shortcut) return shownShortcut(fernwick::asText(property->Value()));
    const auto value = property->Value();
    if (isBoolean(details, value)) return shownTruth(fernwick::asBoolean(value));
    if (!details.choices().empty()) return shownEnumeration(details, value);
    if (details.showsColour()) return formColourText(fernwick::asLong(value));
    if (details.name == "Index" && fernwick::asText(value) == std::to_string(kNoIndex)) return {};
    return qt(fernwick::asText(value));
}

fernwick::Variant typedValue(const host::ClassProperty& details, const fernwick::Variant& before,
                             const QString& typed) {
    const auto plain = text(typed.trimmed());
    if (isBoolean(details, before)) return fernwick::asBoolean(plain);
    if (!details.choices().empty()) return chosenValue(details, typed.trimmed());
    if (details.showsColour()) {
        const auto colour = formColourOf(typed);
        if (!colour) refuseValue();
        return *colour;
    }
    switch (details.kind) {
    case PropertyKind::Integer:
    case PropertyKind::Enumeration:
        if (details.name == "Index" && plain.empty()) return std::int32_t{kNoIndex};
        return fernwick::asLong(plain);
    case PropertyKind::Single: return sizeOrNumber(details.name, plain);
    case PropertyKind::Unknown: return typedAsBefore(before, text(typed));
    default: return text(typed);
    }
}

QStringList shownChoices(const host::ClassProperty& details, const fernwick::Variant& value) {
    if (isBoolean(details, value)) return {shownTruth(true), shownTruth(false)};
    QStringList shown;
    for (const auto& choice : details.choices()) shown << shownChoice(choice);
    if (details.kind != PropertyKind::Shortcut) return shown;
    shown << kNoShortcut;
    for (const auto& key : host::menuShortcuts()) shown << qt(key.text);
    return shown;
}

bool isEditable(const host::ClassProperty& details, const QString& shown) {
    const bool elsewhere = details.kind == PropertyKind::Picture || isAmong(kLists, details.name);
    const bool unknown =
        details.kind == PropertyKind::Unknown && details.name != "Name" && (shown.isEmpty() || isResource(shown));
    return !elsewhere && !unknown && !shown.contains('\n') && !shown.contains('\r');
}

} // namespace workbench
