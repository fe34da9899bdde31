#include "Components/Tamarik/numbers/cash_flow.h"
#include "Basic/arithmetic.h"
#include "Components/Tamarik/numbers/arguments.h"
#include "Components/Tamarik/numbers/root.h"
#include <algorithm>

namespace tamarik {

using basic::Double;

namespace {

/// The value one period before the first payment, of the payments for which `counts`.
template <class F>
Double valueBefore(Double rate, std::span<const Double> values, F counts) {
    requireArgument(rate != -1 && !values.empty());
    Double sum = 0;
    for (std::size_t i = values.size(); i-- > 0;)
        sum = basic::Divide(sum + (counts(values[i]) ? values[i] : 0), 1 + rate);
    return sum;
}

} // namespace

Double NPV(Double rate, std::span<const Double> values) {
    return valueBefore(rate, values, [](Double) { return true; });
}

Double IRR(std::span<const Double> values, Double guess) {
    const auto has = [&](auto fits) { return std::any_of(values.begin(), values.end(), fits); };
    requireArgument(has([](Double v) { return v < 0; }) && has([](Double v) { return v > 0; }) && guess > -1);
    return rateOf([&](Double rate) { return NPV(rate, values); }, guess);
}

Double MIRR(std::span<const Double> values, Double financeRate, Double reinvestRate) {
    const Double paid = valueBefore(financeRate, values, [](Double v) { return v < 0; });
    const Double received = valueBefore(reinvestRate, values, [](Double v) { return v > 0; });
    requireArgument(values.size() > 1);
    const auto count = static_cast<Double>(values.size());
    const Double ratio = basic::Divide(-received * basic::Power(1 + reinvestRate, count), paid * (1 + financeRate));
    return basic::Power(ratio, 1 / (count - 1)) - 1;
}

} // namespace tamarik
