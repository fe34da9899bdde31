#include "Components/Tamarik/numbers/math.h"
#include "Basic/elementary/elementary.h"
#include "Components/Tamarik/numbers/arguments.h"
#include <cmath>

namespace tamarik {

using basic::Double;

Double Sin(Double angle) { return basic::elementary::sine(angle); }
Double Cos(Double angle) { return basic::elementary::cosine(angle); }
Double Tan(Double angle) { return basic::elementary::tangent(angle); }
Double Atn(Double number) { return basic::elementary::arctangent(number); }

Double Exp(Double number) {
    const Double result = basic::elementary::exponential(number);
    if (!std::isfinite(result)) throw basic::RuntimeError(basic::kOverflow);
    return result;
}

Double Log(Double number) {
    requireArgument(number > 0);
    return basic::elementary::logarithm(number);
}

Double Sqr(Double number) {
    requireArgument(number >= 0);
    return std::sqrt(number);
}

} // namespace tamarik
