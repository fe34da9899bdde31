#include "Basic/arithmetic.h"
#include "Components/QLToolkit/types/folding.h"
#include "Components/QLToolkit/types/operators.h"

namespace qltoolkit {

namespace {

using V = ValueType;

template <class T>
concept Bits = basic::WholeNumber<T> || std::same_as<T, bool>;

struct Combination {
    Operator op;

    template <Bits T>
    ConstantValue operator()(const T& a, const T& b) const {
        switch (op) {
        case Operator::And: return static_cast<T>(a & b);
        case Operator::Or: return static_cast<T>(a | b);
        case Operator::Xor: return static_cast<T>(a ^ b);
        case Operator::Eqv: return basic::Eqv(a, b);
        default: return basic::Imp(a, b);
        }
    }
    template <class T>
    ConstantValue operator()(const T&, const T&) const {
        refuseOperands();
    }
};

struct Complement {
    ConstantValue operator()(bool operand) const { return !operand; }
    template <basic::WholeNumber T>
    ConstantValue operator()(const T& operand) const {
        return static_cast<T>(~operand);
    }
    ConstantValue operator()(const auto&) const { refuseOperands(); }
};

/// As an operand of Not.
ConstantValue bitsOf(const ConstantValue& value) {
    if (typeOf(value) == V::Empty) return basic::Integer{0};
    return converted(value, operationOf(Operator::Not, typeOf(value))->operands);
}

bool hasNoBits(const ConstantValue& value) { return value == converted(basic::Integer{0}, typeOf(value)); }
bool hasAllBits(const ConstantValue& value) { return hasNoBits(complement(value)); }

/// The result if every value in place of Null would give it, otherwise Null.
ConstantValue combineNull(Operator op, const ConstantValue& known, bool isLeft) {
    const auto bits = bitsOf(known);
    if (op == Operator::And && hasNoBits(bits)) return bits;
    if (op == Operator::Or && hasAllBits(bits)) return bits;
    if (op == Operator::Imp && isLeft && hasNoBits(bits)) return complement(bits);
    if (op == Operator::Imp && !isLeft && hasAllBits(bits)) return bits;
    return NullValue{};
}

} // namespace

ConstantValue combine(Operator op, const ConstantValue& left, const ConstantValue& right) {
    return std::visit([&]<class T>(const T& a) { return Combination{op}(a, std::get<T>(right)); }, left);
}

ConstantValue complement(const ConstantValue& operand) { return std::visit(Complement{}, operand); }

ConstantValue foldNull(Operator op, const ConstantValue& left, const ConstantValue& right) {
    if (isNull(left) && isNull(right)) return left;
    const auto& known = isNull(left) ? right : left;
    if (op == Operator::Concat) return converted(known, V::String);
    return op >= Operator::And ? combineNull(op, known, isNull(right)) : ConstantValue(NullValue{});
}

} // namespace qltoolkit
