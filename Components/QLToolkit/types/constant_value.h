#pragma once
// The value of a constant, and what operators make of constants.
#include "Basic/types.h"
#include "Components/QLToolkit/parser/ast_expressions.h"
#include "Components/QLToolkit/types/type.h"
#include <string>
#include <variant>

namespace qltoolkit {

struct NullValue {
    friend bool operator==(NullValue, NullValue) = default;
};
struct NothingValue {
    friend bool operator==(NothingValue, NothingValue) = default;
};

/// std::monostate is Empty. Texts are UTF-8.
using ConstantValue =
    std::variant<std::monostate, NullValue, NothingValue, bool, basic::Byte, basic::Integer, basic::Long, basic::Single,
                 basic::Double, basic::Currency, basic::Date, std::string>;

[[nodiscard]] ValueType typeOf(const ConstantValue& value);

/// A value, or the number of the run-time error that the operation raises.
struct Folded {
    ConstantValue value;
    int error = 0;
    friend bool operator==(const Folded&, const Folded&) = default;
};

/// Option Compare Text makes comparisons and Like ignore case.
[[nodiscard]] Folded fold(Operator, const ConstantValue& left, const ConstantValue& right, bool compareText = false);
[[nodiscard]] Folded fold(Operator, const ConstantValue& operand);
/// Converts to a declared type. Variant keeps the value as it is.
[[nodiscard]] Folded convert(const ConstantValue& value, ValueType to);

} // namespace qltoolkit
