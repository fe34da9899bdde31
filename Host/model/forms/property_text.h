#pragma once
// Conversion between the literals of properties and the values that add-ins see.
#include "Add-in/platform/variant.h"
#include "Host/files/property_value.h"
#include "Host/model/forms/control_class.h"
#include <string>

namespace host {

/// Returns the value of a literal. `comment` is the word after it, which distinguishes Booleans from numbers if the
/// kind is unknown. The value of a resource is the text of its reference.
fernwick::Variant valueOfLiteral(const ClassProperty& property, const PropertyValue& literal, std::string_view comment);

struct WrittenValue {
    std::string literal, comment; ///< without a literal the property has no line
};

/// Returns the literal of a value. `before` is the present literal, which determines the form if the kind is unknown.
/// Error 13 for a value of the wrong type, 6 for an overflow, 380 for a text with a control character, which lines
/// cannot hold.
WrittenValue literalOfValue(const ClassProperty& property, const fernwick::Variant& value, const PropertyValue& before);

} // namespace host
