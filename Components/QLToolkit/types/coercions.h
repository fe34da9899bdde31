#pragma once
// What assigning a value of one declared type to another needs.
#include "Components/QLToolkit/types/type.h"

namespace qltoolkit {

enum class Coercion : std::uint8_t {
    Same,    ///< nothing to do
    Always,  ///< succeeds for every value
    Checked, ///< may fail with an overflow, error 6
    Parsed,  ///< depends on the text or the Variant: may fail with errors 6, 13 or 94
    Default, ///< through the default member of the object: errors 91, 438, 13
    Never    ///< "Type mismatch" when compiling
};

/// For Let assignments and ByVal arguments. Source: the published language specification, 5.5.1.2.
/// An object for a parameter of type Object or Variant is passed as it is.
[[nodiscard]] Coercion coercionOf(ValueType from, ValueType to);
/// Of declared types: arrays must have the same elements, and Types the same name. Strings and arrays of Byte convert to
/// each other.
[[nodiscard]] Coercion coercionOf(const Type& from, const Type& to);

/// How a variable is passed to a ByRef parameter.
enum class ByRef : std::uint8_t {
    Address,   ///< the variable itself; a Variant parameter that refers to it keeps its type
    Temporary, ///< a copy that is stored back after the call, an object with a check of its class
    Never      ///< "ByRef argument type mismatch" when compiling
};

/// Other expressions, fields of objects among them, are passed as copies: see coercionOf.
[[nodiscard]] ByRef byRefOf(const Type& variable, const Type& parameter);

} // namespace qltoolkit
