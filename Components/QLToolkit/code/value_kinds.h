#pragma once
// Which types a slot holds in the same way.
#include "Components/QLToolkit/parser/ast_expressions.h"
#include "Components/QLToolkit/types/type.h"

namespace qltoolkit {

[[nodiscard]] constexpr bool isWhole(ValueType type) {
    return type == ValueType::Boolean || type == ValueType::Byte || type == ValueType::Integer ||
           type == ValueType::Long;
}

[[nodiscard]] constexpr bool isFloat(ValueType type) {
    return type == ValueType::Single || type == ValueType::Double || type == ValueType::Date;
}

[[nodiscard]] constexpr bool isComparison(Operator op) { return op >= Operator::Equal && op <= Operator::GreaterEqual; }

} // namespace qltoolkit
