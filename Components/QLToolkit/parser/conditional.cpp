#include "Components/QLToolkit/parser/conditional.h"
#include "Basic/case_folding.h"
#include "Basic/conversions.h"
#include "Basic/like.h"
#include "Basic/runtime_error.h"
#include "Components/QLToolkit/parser/conditional_functions.h"
#include "Components/QLToolkit/source/characters.h"
#include <cmath>

namespace qltoolkit {

namespace {

using Value = ConditionalValue;

Value numberValue(double n) { return {Value::Kind::Number, n, {}}; }
Value truthValue(bool b) { return numberValue(b ? -1 : 0); }

std::optional<std::int32_t> toBits(double n) {
    const double rounded = std::nearbyint(n);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) return {};
    return static_cast<std::int32_t>(rounded);
}

std::optional<Value> logical(Operator op, double left, double right) {
    const auto l = toBits(left), r = toBits(right);
    if (!l || !r) return {};
    switch (op) {
    case Operator::And: return numberValue(*l & *r);
    case Operator::Or: return numberValue(*l | *r);
    case Operator::Xor: return numberValue(*l ^ *r);
    case Operator::Eqv: return numberValue(~(*l ^ *r));
    default: return numberValue(~*l | *r); // Imp
    }
}

std::optional<Value> wholeDivision(Operator op, double left, double right) {
    const auto l = toBits(left), r = toBits(right);
    if (!l || !r || *r == 0) return {};
    const auto wide = static_cast<std::int64_t>(*l);
    return numberValue(static_cast<double>(op == Operator::Mod ? wide % *r : wide / *r));
}

std::optional<Value> arithmetic(Operator op, double left, double right) {
    switch (op) {
    case Operator::Power: return numberValue(std::pow(left, right));
    case Operator::Multiply: return numberValue(left * right);
    case Operator::Divide:
        if (right == 0) return {};
        return numberValue(left / right);
    case Operator::IntDivide:
    case Operator::Mod: return wholeDivision(op, left, right);
    case Operator::Add: return numberValue(left + right);
    case Operator::Subtract: return numberValue(left - right);
    default: return logical(op, left, right);
    }
}

template <class T>
std::optional<Value> compareValues(Operator op, const T& left, const T& right) {
    switch (op) {
    case Operator::Equal: return truthValue(left == right);
    case Operator::NotEqual: return truthValue(left != right);
    case Operator::Less: return truthValue(left < right);
    case Operator::LessEqual: return truthValue(left <= right);
    case Operator::Greater: return truthValue(left > right);
    default: return truthValue(left >= right);
    }
}

bool isComparison(Operator op) { return op >= Operator::Equal && op <= Operator::GreaterEqual; }

std::optional<Value> like(const Value& left, const Value& right) {
    std::optional<Value> result;
    (void)basic::attempt([&] { result = truthValue(basic::Like(textOf(left), textOf(right))); });
    return result;
}

std::optional<Value> binaryValue(Operator op, const Value& left, const Value& right) {
    if (op == Operator::Like) return like(left, right);
    if (op == Operator::Is) return {};
    if (op == Operator::Concat) return Value{Value::Kind::Text, 0, textOf(left) + textOf(right)};
    const bool texts = left.kind == Value::Kind::Text || right.kind == Value::Kind::Text;
    if (!texts)
        return isComparison(op) ? compareValues(op, left.number, right.number)
                                : arithmetic(op, left.number, right.number);
    const bool both = left.kind != Value::Kind::Number && right.kind != Value::Kind::Number;
    if (!both) return {};
    if (op == Operator::Add) return Value{Value::Kind::Text, 0, left.text + right.text};
    if (!isComparison(op)) return {};
    return compareValues(op, basic::foldCase(left.text), basic::foldCase(right.text));
}

std::optional<Value> unaryValue(Operator op, const Value& v) {
    if (v.kind == Value::Kind::Text) return {};
    if (op == Operator::Negate) return numberValue(-v.number);
    if (op == Operator::Plus) return v;
    const auto bits = toBits(v.number);
    if (!bits) return {};
    return numberValue(~*bits);
}

std::string_view wordAt(const SourceText& source, Pos begin) {
    Pos end = begin;
    while (charIs(source.data()[end], kNamePart)) ++end;
    return source.text(begin, end);
}

} // namespace

std::string textOf(const ConditionalValue& v) {
    if (v.kind == Value::Kind::Text) return v.text;
    return v.kind == Value::Kind::Empty ? std::string() : basic::CStr(v.number);
}

std::optional<ConditionalValue> Conditions::evaluate(const SourceText& source, const Expr& e) const {
    switch (e.kind) {
    case ExprKind::Integer:
    case ExprKind::Long: return numberValue(static_cast<double>(as<IntegerExpr>(e).value));
    case ExprKind::Currency: return numberValue(static_cast<double>(as<IntegerExpr>(e).value) / 10000);
    case ExprKind::Single:
    case ExprKind::Double:
    case ExprKind::Date: return numberValue(as<FloatExpr>(e).value);
    case ExprKind::String: return Value{Value::Kind::Text, 0, stringValue(source, as<StringExpr>(e))};
    case ExprKind::Boolean: return truthValue(e.detail != 0);
    case ExprKind::Empty: return Value{};
    case ExprKind::Paren: return evaluate(source, *as<UnaryExpr>(e).operand);
    case ExprKind::Name: {
        const auto found = constants_.find(as<NameExpr>(e).name);
        return found == constants_.end() ? Value{} : found->second;
    }
    case ExprKind::Unary: {
        const auto v = evaluate(source, *as<UnaryExpr>(e).operand);
        return v ? unaryValue(e.op(), *v) : std::nullopt;
    }
    case ExprKind::Binary: return evaluateChain(source, e);
    case ExprKind::Index: return evaluateCall(source, as<IndexExpr>(e));
    default: return {};
    }
}

std::optional<ConditionalValue> Conditions::evaluateCall(const SourceText& source, const IndexExpr& e) const {
    if (e.callee->kind != ExprKind::Name || e.arguments.size() != 1) return {};
    const Argument& argument = *e.arguments.begin();
    if (!argument.value || argument.byVal || argument.name != Symbol::None) return {};
    const auto value = evaluate(source, *argument.value);
    return value ? callConditionalFunction(wordAt(source, e.callee->pos), *value) : std::nullopt;
}

// Chains such as a Or b Or c ... may be long, so their left side is walked in a loop.
std::optional<ConditionalValue> Conditions::evaluateChain(const SourceText& source, const Expr& e) const {
    std::vector<const BinaryExpr*> chain;
    const Expr* first = &e;
    for (; first->kind == ExprKind::Binary; first = chain.back()->left) chain.push_back(&as<BinaryExpr>(*first));
    auto value = evaluate(source, *first);
    for (auto link = chain.rbegin(); value && link != chain.rend(); ++link) {
        const auto right = evaluate(source, *(*link)->right);
        value = right ? binaryValue((*link)->op(), *value, *right) : std::nullopt;
    }
    return value;
}

} // namespace qltoolkit
