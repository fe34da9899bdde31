// Operators.
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/code/emitter.h"
#include "Components/QLToolkit/code/value_kinds.h"
#include "Components/QLToolkit/types/operators.h"
#include <algorithm>
#include <utility>

namespace qltoolkit {

using image::Op;
using image::VariantOperator;

namespace {

ValueType valueType(const Type& type) { return type.isArray ? ValueType::Array : type.value; }

VariantOperator variantOperator(Operator op) {
    switch (op) {
    case Operator::Power: return VariantOperator::Power;
    case Operator::Multiply: return VariantOperator::Multiply;
    case Operator::Divide: return VariantOperator::Divide;
    case Operator::IntDivide: return VariantOperator::IntDivide;
    case Operator::Mod: return VariantOperator::Mod;
    case Operator::Add: return VariantOperator::Add;
    case Operator::Subtract: return VariantOperator::Subtract;
    case Operator::Concat: return VariantOperator::Concat;
    case Operator::Equal: return VariantOperator::Equal;
    case Operator::NotEqual: return VariantOperator::NotEqual;
    case Operator::Less: return VariantOperator::Less;
    case Operator::LessEqual: return VariantOperator::LessEqual;
    case Operator::Greater: return VariantOperator::Greater;
    case Operator::GreaterEqual: return VariantOperator::GreaterEqual;
    case Operator::Like: return VariantOperator::Like;
    case Operator::And: return VariantOperator::And;
    case Operator::Or: return VariantOperator::Or;
    case Operator::Xor: return VariantOperator::Xor;
    case Operator::Eqv: return VariantOperator::Eqv;
    case Operator::Imp: return VariantOperator::Imp;
    case Operator::Negate: return VariantOperator::Negate;
    case Operator::Not: return VariantOperator::Not;
    default: return VariantOperator::Plus;
    }
}

Op wholeOp(Operator op, bool isInteger) {
    switch (op) {
    case Operator::Add: return isInteger ? Op::AddInteger : Op::AddLong;
    case Operator::Subtract: return isInteger ? Op::SubtractInteger : Op::SubtractLong;
    case Operator::Multiply: return isInteger ? Op::MultiplyInteger : Op::MultiplyLong;
    case Operator::IntDivide: return Op::DivideLong;
    case Operator::Mod: return Op::ModLong;
    case Operator::And: return Op::AndLong;
    case Operator::Or: return Op::OrLong;
    case Operator::Xor: return Op::XorLong;
    case Operator::Eqv: return Op::EqvLong;
    default: return Op::ImpLong;
    }
}

Op floatOp(Operator op) {
    switch (op) {
    case Operator::Add: return Op::AddFloat;
    case Operator::Subtract: return Op::SubtractFloat;
    case Operator::Multiply: return Op::MultiplyFloat;
    case Operator::Divide: return Op::DivideFloat;
    default: return Op::PowerFloat;
    }
}

Op currencyOp(Operator op) {
    switch (op) {
    case Operator::Add: return Op::AddCurrency;
    case Operator::Subtract: return Op::SubtractCurrency;
    default: return Op::MultiplyCurrency;
    }
}

/// The value of a number that is written there, if it is whole.
std::optional<std::int64_t> wholeLiteral(const Expr& expr) {
    if (expr.kind == ExprKind::Integer || expr.kind == ExprKind::Long) return as<IntegerExpr>(expr).value;
    if (expr.kind == ExprKind::Unary && expr.op() == Operator::Negate)
        if (const auto operand = wholeLiteral(*as<UnaryExpr>(expr).operand)) return -*operand;
    return std::nullopt;
}

std::optional<double> numberLiteral(const Expr& expr) {
    if (const auto whole = wholeLiteral(expr)) return static_cast<double>(*whole);
    if (expr.kind == ExprKind::Single || expr.kind == ExprKind::Double) return as<FloatExpr>(expr).value;
    return std::nullopt;
}

bool isSmall(std::int64_t value) { return value >= -128 && value <= 127; }

} // namespace

// A chain of operators may be long, so its left side is walked in a loop.
Value Emitter::binary(const Expr& expr, std::optional<std::uint32_t> target) {
    const auto bottom = chain_.size();
    const auto mark = slots_.mark();
    const Expr* left = &expr;
    while (left->kind == ExprKind::Binary) {
        chain_.push_back(&as<BinaryExpr>(*left));
        left = as<BinaryExpr>(*left).left;
    }
    const bool beginsWithIs = chain_.back()->op() == Operator::Is;
    Value result = beginsWithIs ? Value{} : value(*left);
    const auto top = chain_.size();
    for (auto at = top; at-- > bottom;) {
        const BinaryExpr& next = *chain_[at];
        if (beginsWithIs && at + 1 == top)
            result = isSame(next);
        else
            result = operate(next, result, at == bottom ? target : std::nullopt);
        // The chain needs nothing else of what was computed.
        releaseOperands(mark, result.slot);
    }
    chain_.resize(bottom);
    return result;
}

Value Emitter::operate(const BinaryExpr& expr, const Value& left, std::optional<std::uint32_t> target) {
    const Operator op = expr.op();
    if (op == Operator::Is) { // of what an operator gave, which is a Variant
        const Value object = checkClass(left, {ValueType::Object});
        const Value other = checkClass(value(*expr.right), {ValueType::Object});
        const Value result{{ValueType::Boolean}, targetOr(target, ValueType::Boolean)};
        out_.emit(Op::IsSameObject, result.slot, object.slot, other.slot);
        return result;
    }
    Value first = left;
    if (first.variable && mayChange(*expr.right, first)) first = moved(first, temporary(first.type));
    const Type rightType = typeOfExpr(*expr.right);
    const auto operation = operationOf(op, valueType(first.type), valueType(rightType));
    if (!operation) return fail(basic::kTypeMismatch, noteOf(expr).type);
    const bool joins = op == Operator::Concat || op == Operator::Add;
    if (joins && operation->operands == ValueType::String)
        return join(first, *expr.right, first.isTemporary && first.type.value == ValueType::String, target);
    if (const auto result = operateByNumber(expr, *operation, first, target)) return *result;

    const bool isVariant = operation->operands == ValueType::Variant || operation->result == ValueType::Variant;
    if (isVariant) {
        return operateVariants(op, first, value(*expr.right), target); // which needs the declared type of both
    }
    first = convert(first, {operation->operands});
    const bool isDirect = isTarget(target, operation->result);
    const bool isReused =
        !isDirect && first.isTemporary && layout_.slotTypeOf(first.type) == layout_.slotTypeOf({operation->result});
    const std::uint32_t slot = isDirect ? *target : isReused ? first.slot : temporary({operation->result});
    const Value second = value(*expr.right, {operation->operands});
    Value result;
    if (isComparison(op) || op == Operator::Like)
        result = comparison(op, first, second, slot);
    else
        result = arithmetic(op, operation->operands, operation->result, first, second, slot);
    return result;
}

/// The type of the value of an expression.
Type Emitter::typeOfExpr(const Expr& expr) const {
    const Expr* at = &expr;
    while (at->note == 0 && at->kind == ExprKind::Index) at = as<IndexExpr>(*at).callee;
    Type type = noteOf(*at).type;
    if (type.value == ValueType::Unknown) type.value = ValueType::Variant;
    return type;
}

// Instructions with a number in them.
std::optional<Value> Emitter::operateByNumber(const BinaryExpr& expr, const Operation& operation, const Value& left,
                                              std::optional<std::uint32_t> target) {
    const Operator op = expr.op();
    const bool isSum = op == Operator::Add || op == Operator::Subtract;
    const auto whole = wholeLiteral(*expr.right);
    if ((operation.operands == ValueType::Long || operation.operands == ValueType::Integer) && whole &&
        isWhole(operation.result)) {
        const std::int64_t number = op == Operator::Subtract ? -*whole : *whole;
        if (!isSmall(number) || !isWhole(left.type.value)) return std::nullopt;
        const bool isInteger = operation.result == ValueType::Integer;
        Op made;
        if (isSum)
            made = isInteger ? Op::AddIntegerK : Op::AddLongK;
        else if (op == Operator::Multiply && !isInteger)
            made = Op::MultiplyLongK;
        else if (op == Operator::IntDivide && number != -1 && number != 0)
            made = Op::DivideLongK;
        else if (op == Operator::Mod && number != -1 && number != 0)
            made = Op::ModLongK;
        else if (op == Operator::And)
            made = Op::AndLongK;
        else
            return std::nullopt;
        const Value result{{operation.result}, targetOr(target, operation.result)};
        out_.emit(made, result.slot, left.slot, static_cast<std::uint32_t>(number));
        return result;
    }
    const auto number = numberLiteral(*expr.right);
    if (operation.operands != ValueType::Double || operation.result != ValueType::Double || !number)
        return std::nullopt;
    Op made;
    switch (op) {
    case Operator::Add: made = Op::AddFloatK; break;
    case Operator::Subtract: made = Op::SubtractFloatK; break;
    case Operator::Multiply: made = Op::MultiplyFloatK; break;
    case Operator::Divide: made = Op::DivideFloatK; break;
    default: return std::nullopt;
    }
    const auto place = out_.number(*number);
    if (place > 0xFF) return std::nullopt;
    const Value first = convert(left, {ValueType::Double});
    const Value result{{ValueType::Double}, targetOr(target, ValueType::Double)};
    out_.emit(made, result.slot, first.slot, place);
    return result;
}

/// The operands have the operation's type already.
Value Emitter::arithmetic(Operator op, ValueType type, ValueType result, const Value& left, const Value& right,
                          std::optional<std::uint32_t> target) {
    const Value made{{result}, targetOr(target, result)};
    if (isWhole(type)) {
        const bool isLogic = op >= Operator::And;
        const bool isInteger = type == ValueType::Integer && !isLogic;
        const bool isByte = type == ValueType::Byte && (!isLogic || op == Operator::Eqv || op == Operator::Imp);
        const bool isQuotient = isInteger && op == Operator::IntDivide; // -32768 \ -1
        const auto raw = isByte || isQuotient ? uncheckedSlot(made) : made.slot;
        out_.emit(wholeOp(op, isInteger), raw, left.slot, right.slot);
        if (isByte && isLogic) // only 8 bits count
            out_.emit(Op::AndLong, made.slot, raw, longConstant(0xFF, {}).slot);
        else if (isByte)
            out_.emit(Op::CheckByte, made.slot, raw);
        else if (isQuotient)
            out_.emit(Op::CheckInteger, made.slot, raw);
        return made;
    }
    if (isFloat(type)) {
        const bool isChecked = result == ValueType::Single || result == ValueType::Date;
        const auto raw = isChecked ? uncheckedSlot(made) : made.slot;
        out_.emit(floatOp(op), raw, left.slot, right.slot);
        if (isChecked) out_.emit(result == ValueType::Single ? Op::RoundSingle : Op::CheckDate, made.slot, raw);
        return made;
    }
    if (type == ValueType::Currency && op != Operator::Divide) {
        out_.emit(currencyOp(op), made.slot, left.slot, right.slot);
        return made;
    }
    return operateVariants(op, left, right, target);
}

/// Where a result is until it is checked: a variable keeps its value if the check fails.
std::uint32_t Emitter::uncheckedSlot(const Value& made) {
    const auto& inUse = slots_.inUse();
    const bool isTemporary =
        std::any_of(inUse.begin(), inUse.end(), [&](const auto& each) { return each.slot == made.slot; });
    return isTemporary ? made.slot : temporary(made.type);
}

Value Emitter::comparison(Operator op, const Value& left, const Value& right, std::optional<std::uint32_t> target) {
    const Value made{{ValueType::Boolean}, targetOr(target, ValueType::Boolean)};
    if (op == Operator::Like) {
        out_.emit(module_.comparesText ? Op::LikeNoCase : Op::LikeText, made.slot, left.slot, right.slot);
        return made;
    }
    const Label isTrue = out_.label();
    const auto inner = slots_.mark();
    const auto slot = temporary({ValueType::Boolean});
    out_.emitWide(Op::LoadShort, slot, 0xFFFF);
    compareJump(op, left, right, true, isTrue);
    out_.emitWide(Op::LoadShort, slot, 0);
    out_.place(isTrue);
    out_.emit(Op::Move, made.slot, slot);
    slots_.releaseTo(inner);
    return made;
}

Value Emitter::operateVariants(Operator op, const Value& left, const Value& right,
                               std::optional<std::uint32_t> target) {
    const Value first = toVariant(left, {}), second = toVariant(right, {});
    // The result may be written while the operands are read, but not where it is one of other declared types.
    (void)target;
    const Value result{{ValueType::Variant}, temporary({ValueType::Variant})};
    out_.emit(Op::Operate, result.slot, first.slot, second.slot);
    const auto declared = [](const Value& value) {
        return value.type.isArray ? image::BaseType::Variant : baseTypeOf(value.type.value);
    };
    out_.extra(
        image::OperationWord{variantOperator(op), module_.comparesText, declared(left), declared(right)}.packed());
    holdsNoObject(result.slot);
    return result;
}

Value Emitter::join(const Value& left, const Expr& right, bool isTemporary, std::optional<std::uint32_t> target) {
    const Value first = convert(left, {ValueType::String});
    const bool appends = isTemporary || (first.slot != left.slot && first.isTemporary);
    const Value result{{ValueType::String}, appends ? first.slot : targetOr(target, ValueType::String)};
    const Value second = value(right, {ValueType::String});
    if (appends)
        out_.emit(Op::AppendText, result.slot, second.slot);
    else
        out_.emit(Op::JoinText, result.slot, first.slot, second.slot);
    return result;
}

Value Emitter::unary(const UnaryExpr& expr, std::optional<std::uint32_t> target) {
    const auto number = wholeLiteral(expr);
    const Type type = noteOf(expr).type;
    if (number && expr.op() == Operator::Negate && isWhole(type.value) && *number >= -32768)
        return longConstant(*number, target, type.value);
    const Value operand = value(*expr.operand);
    const auto operation = operationOf(expr.op(), valueType(operand.type));
    if (!operation) return fail(basic::kTypeMismatch, type);
    if (operation->operands == ValueType::Variant || operation->result == ValueType::Variant) {
        const Value boxed = toVariant(operand, {});
        const Value result{{ValueType::Variant}, temporary({ValueType::Variant})};
        out_.emit(Op::OperateUnary, result.slot, boxed.slot);
        out_.extra(
            image::OperationWord{variantOperator(expr.op()), false, image::BaseType::Variant, image::BaseType::Variant}
                .packed());
        return result;
    }
    const Value converted = convert(operand, {operation->operands});
    if (expr.op() == Operator::Plus) return converted;
    const Value result{{operation->result}, targetOr(target, operation->result)};
    if (expr.op() == Operator::Not) {
        out_.emit(operation->operands == ValueType::Byte ? Op::NotByte : Op::NotLong, result.slot, converted.slot);
        return result;
    }
    if (isFloat(operation->operands)) {
        const bool isDate = operation->result == ValueType::Date;
        const auto raw = isDate ? uncheckedSlot(result) : result.slot;
        out_.emit(Op::NegateFloat, raw, converted.slot);
        if (isDate) out_.emit(Op::CheckDate, result.slot, raw);
    } else if (operation->operands == ValueType::Currency) {
        out_.emit(Op::NegateCurrency, result.slot, converted.slot);
    } else {
        const bool isInteger = operation->result == ValueType::Integer;
        const auto raw = isInteger ? uncheckedSlot(result) : result.slot;
        out_.emit(Op::NegateLong, raw, converted.slot);
        if (isInteger) out_.emit(Op::CheckInteger, result.slot, raw);
    }
    return result;
}

Value Emitter::isSame(const BinaryExpr& expr) {
    const Value left = checkClass(value(*expr.left), {ValueType::Object});
    const Value right = checkClass(value(*expr.right), {ValueType::Object});
    const Value result{{ValueType::Boolean}, temporary({ValueType::Boolean})};
    out_.emit(Op::IsSameObject, result.slot, left.slot, right.slot);
    return result;
}

} // namespace qltoolkit
