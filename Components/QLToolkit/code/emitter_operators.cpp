// Operators.
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/code/emitter.h"
#include "Components/QLToolkit/code/literals.h"
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

bool isSmall(std::int64_t value) { return value >= -128 && value <= 127; }

std::optional<Op> floatNumberOp(Operator op) {
    switch (op) {
    case Operator::Add: return Op::AddFloatK;
    case Operator::Subtract: return Op::SubtractFloatK;
    case Operator::Multiply: return Op::MultiplyFloatK;
    case Operator::Divide: return Op::DivideFloatK;
    default: return std::nullopt;
    }
}

/// A difference is a sum with the negative number.
std::optional<Op> wholeNumberOp(Operator op, bool isInteger, std::int64_t number) {
    const bool divides = number != -1 && number != 0;
    switch (op) {
    case Operator::Add:
    case Operator::Subtract: return isInteger ? Op::AddIntegerK : Op::AddLongK;
    case Operator::Multiply: return isInteger ? std::nullopt : std::optional(Op::MultiplyLongK);
    case Operator::IntDivide: return divides ? std::optional(Op::DivideLongK) : std::nullopt;
    case Operator::Mod: return divides ? std::optional(Op::ModLongK) : std::nullopt;
    case Operator::And: return Op::AndLongK;
    default: return std::nullopt;
    }
}

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
    Value result;
    const auto top = chain_.size();
    for (auto at = top; at-- > bottom;) {
        const BinaryExpr& next = *chain_[at];
        const bool isFirst = at + 1 == top;
        const auto last = at == bottom ? target : std::nullopt;
        if (isFirst && next.op() == Operator::Is)
            result = isSame(next);
        else if (const auto made = isFirst ? operateOnNumber(next, last) : std::nullopt)
            result = *made;
        else
            result = operate(next, isFirst ? value(*left) : result, last);
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
    if (const auto form = numberForm(op, *operation, *expr.right, first.type))
        return operateByNumber(*form, *operation, first, target);

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

/// The instruction with a number in it for an operator, one of whose operands is that number. The other operand is the left one,
/// or they may change places.
std::optional<Emitter::NumberForm> Emitter::numberForm(Operator op, const Operation& operation, const Expr& number,
                                                       const Type& other) {
    if (operation.operands == ValueType::Double && operation.result == ValueType::Double) {
        const auto fraction = numberLiteral(number);
        const auto made = floatNumberOp(op);
        if (!fraction || !made) return std::nullopt;
        const auto place = out_.number(*fraction);
        return place > 0xFF ? std::nullopt : std::optional(NumberForm{*made, place});
    }
    const bool isInteger = operation.result == ValueType::Integer;
    if ((operation.operands != ValueType::Long && operation.operands != ValueType::Integer) ||
        !isWhole(operation.result) || !isWhole(other.value))
        return std::nullopt;
    const auto written = wholeLiteral(number);
    if (!written) return std::nullopt;
    const std::int64_t value = op == Operator::Subtract ? -*written : *written;
    const auto made = wholeNumberOp(op, isInteger, value);
    if (!isSmall(value) || !made) return std::nullopt;
    return NumberForm{*made, static_cast<std::uint32_t>(value)};
}

Value Emitter::operateByNumber(const NumberForm& form, const Operation& operation, const Value& operand,
                               std::optional<std::uint32_t> target) {
    const Value first = operation.operands == ValueType::Double ? convert(operand, {ValueType::Double}) : operand;
    const Value result{{operation.result}, targetOr(target, operation.result)};
    out_.emit(form.op, result.slot, first.slot, form.operand);
    return result;
}

/// A number that is written on the left of an operator whose operands may change places.
std::optional<Value> Emitter::operateOnNumber(const BinaryExpr& expr, std::optional<std::uint32_t> target) {
    const Operator op = expr.op();
    if ((op != Operator::Add && op != Operator::Multiply) || !numberLiteral(*expr.left)) return std::nullopt;
    const Type other = typeOfExpr(*expr.right);
    const auto operation = operationOf(op, valueType(typeOfExpr(*expr.left)), valueType(other));
    if (!operation) return std::nullopt;
    const auto form = numberForm(op, *operation, *expr.left, other);
    if (!form) return std::nullopt;
    return operateByNumber(*form, *operation, value(*expr.right), target);
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
