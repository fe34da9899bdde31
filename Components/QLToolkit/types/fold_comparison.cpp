#include "Basic/text_search.h"
#include "Components/QLToolkit/types/folding.h"

namespace qltoolkit {

namespace {

/// Returns a number below, equal to or above 0.
struct Order {
    basic::VbCompareMethod method;

    int operator()(const auto& a, const auto& b) const { return (a > b) - (a < b); }
    int operator()(const std::string& a, const std::string& b) const { return basic::StrComp(a, b, method); }
    // True is -1.
    int operator()(bool a, bool b) const { return b - a; }
    int operator()(basic::Currency a, basic::Currency b) const { return (*this)(a.scaled, b.scaled); }
    int operator()(basic::Date a, basic::Date b) const { return (*this)(a.days, b.days); }
    int operator()(NullValue, NullValue) const { return 0; }
    int operator()(NothingValue, NothingValue) const { return 0; }
};

bool holds(Operator op, int order) {
    switch (op) {
    case Operator::Equal: return order == 0;
    case Operator::NotEqual: return order != 0;
    case Operator::Less: return order < 0;
    case Operator::LessEqual: return order <= 0;
    case Operator::Greater: return order > 0;
    default: return order >= 0;
    }
}

} // namespace

bool compare(Operator op, const ConstantValue& left, const ConstantValue& right, bool ignoreCase) {
    const Order order{ignoreCase ? basic::vbTextCompare : basic::vbBinaryCompare};
    return holds(op, std::visit([&]<class T>(const T& a) { return order(a, std::get<T>(right)); }, left));
}

} // namespace qltoolkit
