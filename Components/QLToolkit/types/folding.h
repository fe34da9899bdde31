#pragma once
// The steps of folding. Errors are thrown as basic::RuntimeError.
#include "Basic/runtime_error.h"
#include "Components/QLToolkit/types/constant_value.h"

namespace qltoolkit {

[[nodiscard]] inline bool isNull(const ConstantValue& value) { return typeOf(value) == ValueType::Null; }

[[nodiscard]] ConstantValue converted(const ConstantValue& value, ValueType to);

// Both operands have the type that the operator needs.
[[nodiscard]] ConstantValue calculate(Operator, const ConstantValue& left, const ConstantValue& right);
[[nodiscard]] bool compare(Operator, const ConstantValue& left, const ConstantValue& right, bool ignoreCase);
[[nodiscard]] ConstantValue combine(Operator, const ConstantValue& left, const ConstantValue& right);
[[nodiscard]] ConstantValue negate(const ConstantValue& operand);
[[nodiscard]] ConstantValue complement(const ConstantValue& operand);

/// For types to which no operator converts its operands.
[[noreturn]] inline ConstantValue refuseOperands() { throw basic::RuntimeError(basic::kTypeMismatch); }

/// The result where one operand or both are Null.
[[nodiscard]] ConstantValue foldNull(Operator, const ConstantValue& left, const ConstantValue& right);

} // namespace qltoolkit
