#pragma once
// VB's functions for annuities. Cash paid out is negative. `atStart` is for payments at the beginning of each period.
// Errors: 5 where there is no result, 6 for an overflow.
#include "Basic/types.h"

namespace tamarik {

using basic::Double;

Double FV(Double rate, Double periods, Double payment, Double presentValue = 0, bool atStart = false);
Double PV(Double rate, Double periods, Double payment, Double futureValue = 0, bool atStart = false);
Double Pmt(Double rate, Double periods, Double presentValue, Double futureValue = 0, bool atStart = false);
Double NPer(Double rate, Double payment, Double presentValue, Double futureValue = 0, bool atStart = false);

/// The interest and the principal of one payment. Error 5 unless 0 < period < periods + 1.
Double IPmt(Double rate, Double period, Double periods, Double presentValue, Double futureValue = 0,
            bool atStart = false);
Double PPmt(Double rate, Double period, Double periods, Double presentValue, Double futureValue = 0,
            bool atStart = false);

/// Found by iteration from `guess`; error 5 if that fails.
Double Rate(Double periods, Double payment, Double presentValue, Double futureValue = 0, bool atStart = false,
            Double guess = 0.1);

} // namespace tamarik
