#pragma once
// The module Math, with results that are the same on every machine.
#include "Basic/types.h"

namespace tamarik {

basic::Double Sin(basic::Double angle);
basic::Double Cos(basic::Double angle);
basic::Double Tan(basic::Double angle);
basic::Double Atn(basic::Double number);

/// Error 6 for an overflow.
basic::Double Exp(basic::Double number);

/// Error 5 unless the number is positive.
basic::Double Log(basic::Double number);

/// Error 5 for a negative number.
basic::Double Sqr(basic::Double number);

} // namespace tamarik
