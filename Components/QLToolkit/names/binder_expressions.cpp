// Expressions: operators, literals, and the walk along chains.
#include "Basic/error_numbers.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/types/coercions.h"
#include "Components/QLToolkit/types/operators.h"

namespace qltoolkit {

namespace {

const Expr* leftOf(const Expr& expr) {
    switch (expr.kind) {
    case ExprKind::Binary: return as<BinaryExpr>(expr).left;
    case ExprKind::Member:
    case ExprKind::Bang: return as<MemberExpr>(expr).base;
    case ExprKind::Index: return as<IndexExpr>(expr).callee;
    default: return nullptr;
    }
}

ValueType typeOfLiteral(ExprKind kind) {
    switch (kind) {
    case ExprKind::Integer: return ValueType::Integer;
    case ExprKind::Long: return ValueType::Long;
    case ExprKind::Currency: return ValueType::Currency;
    case ExprKind::Single: return ValueType::Single;
    case ExprKind::Double: return ValueType::Double;
    case ExprKind::Date: return ValueType::Date;
    case ExprKind::String: return ValueType::String;
    case ExprKind::Boolean: return ValueType::Boolean;
    case ExprKind::Empty: return ValueType::Empty;
    case ExprKind::Null: return ValueType::Null;
    default: return ValueType::Nothing;
    }
}

bool isNumber(const Expr& expr) { return expr.kind <= ExprKind::Double; }

} // namespace

// Goes down to the innermost left part and back up in a loop, because chains may be long. What follows the part that is
// being bound waits in spine_; a call takes its arguments from there.
Operand Binder::expression(const Expr& expr, Use use) {
    const auto outerBottom = std::exchange(bottom_, spine_.size());
    const auto outerUse = std::exchange(use_, use);
    const Expr* innermost = &expr;
    while (const Expr* left = leftOf(*innermost)) {
        spine_.push_back(innermost);
        innermost = left;
    }
    Operand result = leaf(*innermost);
    note(*innermost, result);
    while (spine_.size() > bottom_) {
        const Expr& next = *spine_.back();
        spine_.pop_back();
        switch (next.kind) {
        case ExprKind::Binary: result = binary(as<BinaryExpr>(next), result); break;
        case ExprKind::Member: result = member(result, as<MemberExpr>(next)); break;
        case ExprKind::Bang: result = bang(result, as<MemberExpr>(next)); break;
        default: result = index(result, as<IndexExpr>(next));
        }
        note(next, result);
    }
    bottom_ = outerBottom;
    use_ = outerUse;
    if (use == Use::Value) readValue(result);
    return result;
}

/// A faulty statement may lack an expression.
Operand Binder::operandOf(const Expr* expr, Use use) {
    return expr ? expression(*expr, use) : Operand{OperandKind::Late, {ValueType::Unknown}};
}

Operand Binder::leaf(const Expr& expr) {
    switch (expr.kind) {
    case ExprKind::Name: return name(as<NameExpr>(expr));
    case ExprKind::Member:
    case ExprKind::Bang: {
        if (withs_.empty()) {
            report(Message::UnqualifiedReference, expr.pos);
            return {OperandKind::Late, {ValueType::Unknown}, expr.pos};
        }
        const Operand base = withs_.back();
        return expr.kind == ExprKind::Member ? member(base, as<MemberExpr>(expr)) : bang(base, as<MemberExpr>(expr));
    }
    case ExprKind::Me: {
        if (!module_.scope->isClass()) {
            report(Message::InvalidMe, expr.pos);
            return {OperandKind::Late, {ValueType::Unknown}, expr.pos};
        }
        return {OperandKind::Value, {ValueType::Object, false, false, module_.scope->number}, expr.pos};
    }
    case ExprKind::Paren: {
        const Operand inner = expression(*as<UnaryExpr>(expr).operand);
        return {OperandKind::Value, inner.type, expr.pos};
    }
    case ExprKind::Unary: return unary(as<UnaryExpr>(expr));
    case ExprKind::New: return newObject(as<NewExpr>(expr));
    case ExprKind::TypeOf: return typeOf(as<TypeOfExpr>(expr));
    case ExprKind::AddressOf: return addressOf(as<UnaryExpr>(expr));
    case ExprKind::Coordinates: return coordinates(as<CoordinatesExpr>(expr));
    default: return {OperandKind::Constant, {typeOfLiteral(expr.kind)}, expr.pos};
    }
}

/// Refuses what has no value: modules, and arrays are left to who asked for the value.
void Binder::readValue(const Operand& operand) {
    if (operand.kind == OperandKind::Qualifier) refuseQualifier(operand);
}

void Binder::refuseQualifier(const Operand& operand) {
    module_.diagnostics.report(Message::ExpectedNotModule, operand.pos, kindOf(operand));
}

Operand Binder::unary(const UnaryExpr& expr) {
    const Operand operand = expression(*expr.operand);
    const auto operation = operationOf(expr.op(), operand.type.isArray ? ValueType::Array : operand.type.value);
    if (!operation) report(Message::TypeMismatch, expr.pos);
    return {OperandKind::Value, {operation ? operation->result : ValueType::Unknown}, expr.pos};
}

Operand Binder::binary(const BinaryExpr& expr, const Operand& left) {
    const auto outerLeft = left;
    readValue(left);
    const Operand right = expression(*expr.right);
    if (expr.op() == Operator::Is) return isOperator(expr, outerLeft, right);
    const auto valueType = [](const Type& type) { return type.isArray ? ValueType::Array : type.value; };
    const auto operation = operationOf(expr.op(), valueType(outerLeft.type), valueType(right.type));
    if (!operation) report(Message::TypeMismatch, expr.pos);
    if (program_.warnsOptionally) warnOfFailure(expr);
    const bool compares = expr.op() >= Operator::Equal && expr.op() <= Operator::GreaterEqual;
    if (compares && (left.type.value == ValueType::Null || right.type.value == ValueType::Null) &&
        program_.warnsOptionally)
        report(Message::ComparisonWithNull, expr.pos);
    return {OperandKind::Value, {operation ? operation->result : ValueType::Unknown}, expr.pos};
}

// An operation with two numbers that are written there fails each time it runs.
void Binder::warnOfFailure(const BinaryExpr& expr) {
    if (!isNumber(*expr.left) || !isNumber(*expr.right)) return;
    const auto folded =
        fold(expr.op(), *constants_.valueOf(*expr.left, module_), *constants_.valueOf(*expr.right, module_));
    if (folded.error == basic::kOverflow)
        report(Message::ProductOverflows, expr.pos);
    else if (folded.error != 0)
        module_.diagnostics.report(Message::ConstantFails, expr.pos, std::to_string(folded.error));
}

Operand Binder::isOperator(const BinaryExpr& expr, const Operand& left, const Operand& right) {
    const auto isObject = [](const Operand& operand) {
        const Type& type = operand.type;
        if (type.isArray) return isControlArray(operand);
        return type.value == ValueType::Object || type.value == ValueType::Variant ||
               type.value == ValueType::Nothing || type.value == ValueType::Unknown;
    };
    if (!isObject(left) || !isObject(right)) report(Message::ObjectRequired, expr.pos);
    return {OperandKind::Value, {ValueType::Boolean}, expr.pos};
}

Operand Binder::newObject(const NewExpr& expr) {
    const Type type = types_.typeOf(*expr.type);
    const bool isObject = type.value == ValueType::Object && type.id != 0;
    if (type.value != ValueType::Unknown && !(isObject && program_.scope(type.id).creatable))
        report(Message::InvalidNew, expr.pos);
    return {OperandKind::Value, isObject ? type : Type{ValueType::Unknown}, expr.pos};
}

Operand Binder::typeOf(const TypeOfExpr& expr) {
    const Operand operand = expression(*expr.operand);
    const Type wanted = types_.classOf(*expr.type);
    const auto value = operand.type.value;
    if (operand.type.isArray ||
        (value != ValueType::Object && value != ValueType::Variant && value != ValueType::Unknown))
        report(Message::ObjectRequired, operand.pos);
    return {
        OperandKind::Value, {ValueType::Boolean}, expr.pos, nullptr, wanted.id ? &program_.scope(wanted.id) : nullptr};
}

Operand Binder::coordinates(const CoordinatesExpr& expr) {
    for (const auto* part : {expr.x1, expr.y1, expr.x2, expr.y2}) value(part, ValueType::Single);
    return {OperandKind::Value, {ValueType::None}, expr.pos};
}

/// Checks an expression whose value is converted to a type. Does nothing for an absent expression.
void Binder::value(const Expr* expr, ValueType wanted) {
    if (!expr) return;
    const Operand operand = expression(*expr);
    const auto from = operand.type.isArray ? ValueType::Array : operand.type.value;
    if (coercionOf(from, wanted) == Coercion::Never) report(Message::TypeMismatch, operand.pos);
}

} // namespace qltoolkit
