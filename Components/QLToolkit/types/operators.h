#pragma once
// The operators of the language by the declared types of their operands.
#include "Components/QLToolkit/parser/ast_expressions.h"
#include "Components/QLToolkit/types/type.h"
#include <optional>

namespace qltoolkit {

/// What an operator does with its operands.
struct Operation {
    ValueType operands; ///< to which both operands are converted first; Variant: decided when it runs
    ValueType result;
    friend bool operator==(const Operation&, const Operation&) = default;
};

/// Nothing for operands that the operator cannot have ("Type mismatch"). Source: the published language specification,
/// 5.6.9. An operand of type Unknown fits everywhere and gives Unknown, or the result that no operand changes.
[[nodiscard]] std::optional<Operation> operationOf(Operator, ValueType left, ValueType right);
[[nodiscard]] std::optional<Operation> operationOf(Operator, ValueType operand);

} // namespace qltoolkit
