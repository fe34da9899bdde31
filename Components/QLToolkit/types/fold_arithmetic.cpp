#include "Basic/arithmetic.h"
#include "Basic/date.h"
#include "Components/QLToolkit/types/folding.h"

namespace qltoolkit {

namespace {

using basic::Currency;
using basic::Date;

template <class T>
concept Real = std::same_as<T, basic::Single> || std::same_as<T, basic::Double>;

/// + - *, which all numbers have.
template <class T>
ConstantValue sumOrProduct(Operator op, T a, T b) {
    switch (op) {
    case Operator::Add: return basic::Add(a, b);
    case Operator::Subtract: return basic::Subtract(a, b);
    case Operator::Multiply: return basic::Multiply(a, b);
    default: refuseOperands();
    }
}

struct Calculation {
    Operator op;

    template <basic::WholeNumber T>
    ConstantValue operator()(const T& a, const T& b) const {
        if (op == Operator::IntDivide) return basic::IntegerDivide(a, b);
        return op == Operator::Mod ? ConstantValue(basic::Mod(a, b)) : sumOrProduct(op, a, b);
    }
    template <Real T>
    ConstantValue operator()(const T& a, const T& b) const {
        if (op == Operator::Power) return basic::Power(a, b);
        return op == Operator::Divide ? ConstantValue(basic::Divide(a, b)) : sumOrProduct(op, a, b);
    }
    ConstantValue operator()(Currency a, Currency b) const { return sumOrProduct(op, a, b); }
    ConstantValue operator()(Date a, Date b) const {
        return basic::CDate(std::get<basic::Double>(sumOrProduct(op, a.days, b.days)));
    }
    template <class T>
    ConstantValue operator()(const T&, const T&) const {
        refuseOperands();
    }
};

struct Negation {
    ConstantValue operator()(const basic::WholeNumber auto& number) const { return basic::Negate(number); }
    ConstantValue operator()(const Real auto& number) const { return basic::Negate(number); }
    ConstantValue operator()(Currency number) const { return basic::Negate(number); }
    ConstantValue operator()(Date date) const { return basic::CDate(-date.days); }
    ConstantValue operator()(const auto&) const { refuseOperands(); }
};

} // namespace

ConstantValue calculate(Operator op, const ConstantValue& left, const ConstantValue& right) {
    return std::visit([&]<class T>(const T& a) { return Calculation{op}(a, std::get<T>(right)); }, left);
}

ConstantValue negate(const ConstantValue& operand) { return std::visit(Negation{}, operand); }

} // namespace qltoolkit
