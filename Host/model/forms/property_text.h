#pragma once
// A property's value as the add-in sees it, from the literal of its line and back.
#include "Add-in/platform/variant.h"
#include "Host/files/property_value.h"
#include "Host/model/forms/control_class.h"
#include <string>

namespace host {

/// The value of a literal for a property of this kind; `comment` is the word behind it, which alone tells a
/// Boolean from a number where the kind is unknown. A resource reads as the text of its reference.
fernwick::Variant valueOfLiteral(const ClassProperty& property, const PropertyValue& literal, std::string_view comment);

struct WrittenValue {
    std::string literal, comment;
};

/// The literal of a value. `before` is the literal that stands there, which decides where the kind is unknown.
/// Error 13 for a value of another type, 6 beyond the kind's range, 380 for a text with a control character: such
/// a text can't stand in a line.
WrittenValue literalOfValue(const ClassProperty& property, const fernwick::Variant& value, const PropertyValue& before);

} // namespace host
