#include "Host/model/forms/property_text.h"
#include "Host/files/system_error.h"
#include "Host/model/code/menu_shortcuts.h"
#include <algorithm>
#include <cmath>
#include <limits>

namespace host {
namespace {

using fernwick::Variant;
using Literal = PropertyValue::Kind;

bool fitsLong(double number) {
    return number == std::trunc(number) && number >= std::numeric_limits<std::int32_t>::min() &&
           number <= std::numeric_limits<std::int32_t>::max();
}

Variant numberOf(const PropertyValue& literal) {
    if (literal.kind != Literal::Float && fitsLong(literal.number)) return static_cast<std::int32_t>(literal.number);
    return literal.number;
}

Variant textOf(const PropertyValue& literal) { return literal.kind == Literal::String ? literal.string : literal.text; }

bool isBooleanWord(std::string_view comment) { return comment == "True" || comment == "False"; }

WrittenValue writtenBoolean(bool value) { return {value ? "-1" : "0", value ? "True" : "False"}; }

WrittenValue writtenSingle(double value) {
    if (!std::isfinite(static_cast<float>(value))) throw hostError(basic::kOverflow);
    return {singleLiteral(value), {}};
}

WrittenValue writtenText(const std::string& text) {
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\t'; };
    if (std::any_of(text.begin(), text.end(), isControl)) throw hostError(basic::kInvalidPropertyValue);
    return {stringLiteral(text), {}};
}

/// A shortcut or GUID has no quotes, so the text must be one.
WrittenValue writtenBare(const std::string& text, Literal kind) {
    if (parsePropertyValue(text).kind != kind) throw hostError(basic::kInvalidPropertyValue);
    return {text, {}};
}

WrittenValue writtenShortcut(const std::string& text) {
    const auto literal = shortcutLiteral(text);
    if (!literal) throw hostError(basic::kInvalidPropertyValue);
    return {*literal, {}};
}

WrittenValue writtenAsBefore(const Variant& value, Literal before) {
    if (const auto* truth = std::get_if<bool>(&value)) return writtenBoolean(*truth);
    if (before == Literal::Colour) return {colourLiteral(std::uint32_t(fernwick::asLong(value))), {}};
    if (before == Literal::Shortcut || before == Literal::Guid) return writtenBare(fernwick::asText(value), before);
    if (std::holds_alternative<std::int32_t>(value)) return {integerLiteral(fernwick::asLong(value)), {}};
    if (std::holds_alternative<double>(value)) return writtenSingle(fernwick::asDouble(value));
    return writtenText(fernwick::asText(value));
}

} // namespace

Variant valueOfLiteral(const ClassProperty& property, const PropertyValue& literal, std::string_view comment) {
    switch (property.kind) {
    case PropertyKind::Boolean: return literal.isNumber() ? literal.number != 0 : false;
    case PropertyKind::Integer:
    case PropertyKind::Enumeration:
    case PropertyKind::Colour: return literal.isNumber() ? numberOf(literal) : Variant(std::int32_t{0});
    case PropertyKind::Single: return literal.isNumber() ? literal.number : 0.0;
    case PropertyKind::Text:
    case PropertyKind::LongText:
    case PropertyKind::Shortcut: return textOf(literal);
    default: break;
    }
    if (literal.kind == Literal::Empty) return {};
    if (!literal.isNumber()) return textOf(literal);
    return isBooleanWord(comment) ? Variant(literal.number != 0) : numberOf(literal);
}

WrittenValue literalOfValue(const ClassProperty& property, const Variant& value, const PropertyValue& before) {
    switch (property.kind) {
    case PropertyKind::Boolean: return writtenBoolean(fernwick::asBoolean(value));
    case PropertyKind::Integer: return {integerLiteral(fernwick::asLong(value)), {}};
    case PropertyKind::Enumeration: {
        const auto number = fernwick::asLong(value);
        return {integerLiteral(number), std::string(ControlClass::word(property, number))};
    }
    case PropertyKind::Colour: return {colourLiteral(static_cast<std::uint32_t>(fernwick::asLong(value))), {}};
    case PropertyKind::Single: return writtenSingle(fernwick::asDouble(value));
    case PropertyKind::Text:
    case PropertyKind::LongText: return writtenText(fernwick::asText(value));
    case PropertyKind::Shortcut: return writtenShortcut(fernwick::asText(value));
    default: return writtenAsBefore(value, before.kind);
    }
}

} // namespace host
