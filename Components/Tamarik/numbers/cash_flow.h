#pragma once
// VB's functions for series of payments, of which those paid out are negative. Error 5 for an empty series.
#include "Basic/types.h"
#include <span>

namespace tamarik {

/// Error 5 for a rate of -1.
basic::Double NPV(basic::Double rate, std::span<const basic::Double> values);

/// Found by iteration from `guess`. Error 5 unless there are positive and negative values, and if the iteration fails.
basic::Double IRR(std::span<const basic::Double> values, basic::Double guess = 0.1);

/// Error 5 for a rate of -1, 11 if nothing is paid out.
basic::Double MIRR(std::span<const basic::Double> values, basic::Double financeRate, basic::Double reinvestRate);

} // namespace tamarik
