#include "Basic/arithmetic.h"
#include <cmath>

namespace basic {

namespace {

Double finiteOrOverflow(Double result) {
    if (!std::isfinite(result)) throw RuntimeError(kOverflow);
    return result;
}

} // namespace

Double Power(Double base, Double exponent) {
    const bool undefined = (base < 0 && exponent != std::trunc(exponent)) || (base == 0 && exponent < 0);
    if (undefined) throw RuntimeError(kInvalidProcedureCall);
    return finiteOrOverflow(std::pow(base, exponent));
}

Double Divide(Double a, Double b) {
    if (b == 0) throw RuntimeError(a == 0 ? kOverflow : kDivisionByZero);
    return finiteOrOverflow(a / b);
}

} // namespace basic
