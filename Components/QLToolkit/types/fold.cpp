#include "Basic/like.h"
#include "Basic/runtime_error.h"
#include "Components/QLToolkit/types/folding.h"
#include "Components/QLToolkit/types/operators.h"

namespace qltoolkit {

namespace {

using V = ValueType;

bool isEmpty(const ConstantValue& value) { return typeOf(value) == V::Empty; }
bool isNothing(const ConstantValue& value) { return typeOf(value) == V::Nothing; }
bool isLogic(Operator op) { return op >= Operator::And; }
bool isComparison(Operator op) { return op >= Operator::Equal && op <= Operator::GreaterEqual; }

/// Where the other operand of \, Mod or a logical operator is a Byte, Empty is an Integer nevertheless.
bool keepsBytes(Operator op) { return !isLogic(op) && op != Operator::IntDivide && op != Operator::Mod; }

/// The value that Empty has beside an operand of this type.
ConstantValue valueOfEmpty(Operator op, ValueType other) {
    const bool joins = op == Operator::Add || isComparison(op);
    if (op == Operator::Concat || op == Operator::Like || (joins && other == V::String)) return std::string();
    if (other == V::Byte && keepsBytes(op)) return basic::Byte{0};
    return basic::Integer{0};
}

/// Whether both are Nothing, which is the only object that a constant can be.
ConstantValue areSame(const ConstantValue& left, const ConstantValue& right) {
    if (!isNothing(left) || !isNothing(right)) throw basic::RuntimeError(basic::kObjectRequired);
    return true;
}

/// Constants that double each other would fill the memory, and comparing long patterns would take minutes.
constexpr std::size_t kMostCharacters = 65535, kMostComparisons = 10'000'000;

std::string joined(const std::string& a, const std::string& b) {
    if (a.size() + b.size() > kMostCharacters) throw basic::RuntimeError(basic::kOutOfStringSpace);
    return a + b;
}

bool matches(const std::string& text, const std::string& pattern, bool compareText) {
    if (text.size() * pattern.size() > kMostComparisons) throw basic::RuntimeError(basic::kExpressionTooComplex);
    return basic::Like(text, pattern, compareText ? basic::vbTextCompare : basic::vbBinaryCompare);
}

ConstantValue foldTexts(Operator op, const ConstantValue& left, const ConstantValue& right, bool compareText) {
    const auto &a = std::get<std::string>(left), &b = std::get<std::string>(right);
    return op == Operator::Like ? ConstantValue(matches(a, b, compareText)) : ConstantValue(joined(a, b));
}

ConstantValue foldTyped(Operator op, const ConstantValue& left, const ConstantValue& right, bool compareText) {
    const auto operands = operationOf(op, typeOf(left), typeOf(right))->operands;
    const auto a = converted(left, operands), b = converted(right, operands);
    if (isComparison(op)) return compare(op, a, b, compareText);
    if (operands == V::String) return foldTexts(op, a, b, compareText);
    return isLogic(op) ? combine(op, a, b) : calculate(op, a, b);
}

ConstantValue foldAny(Operator op, const ConstantValue& left, const ConstantValue& right, bool compareText) {
    if (op == Operator::Is) return areSame(left, right);
    if (isNothing(left) || isNothing(right)) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    if (isNull(left) || isNull(right)) return foldNull(op, left, right);
    return foldTyped(op, isEmpty(left) ? valueOfEmpty(op, typeOf(right)) : left,
                     isEmpty(right) ? valueOfEmpty(op, typeOf(left)) : right, compareText);
}

ConstantValue foldAny(Operator op, const ConstantValue& operand) {
    if (isNothing(operand)) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    if (isNull(operand) || op == Operator::Plus) return operand;
    const ConstantValue value = isEmpty(operand) ? basic::Integer{0} : operand;
    const auto typed = converted(value, operationOf(op, typeOf(value))->operands);
    return op == Operator::Not ? complement(typed) : negate(typed);
}

/// The result of a step, or its error.
Folded folded(const auto& step) {
    Folded result;
    result.error = basic::attempt([&] { result.value = step(); }).Number;
    return result;
}

} // namespace

Folded fold(Operator op, const ConstantValue& left, const ConstantValue& right, bool compareText) {
    return folded([&] { return foldAny(op, left, right, compareText); });
}

Folded fold(Operator op, const ConstantValue& operand) {
    return folded([&] { return foldAny(op, operand); });
}

} // namespace qltoolkit
