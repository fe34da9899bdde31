#include "Components/Tamarik/numbers/annuity.h"
#include "Basic/arithmetic.h"
#include "Components/Tamarik/numbers/arguments.h"
#include "Components/Tamarik/numbers/math.h"
#include "Components/Tamarik/numbers/root.h"
#include <cmath>

namespace tamarik {

namespace {

Double growth(Double rate, Double periods) { return basic::Power(1 + rate, periods); }

/// The value at the end of payments of 1, for a rate other than 0.
Double valueOfPayments(Double rate, Double growth, bool atStart) {
    return basic::Divide((1 + (atStart ? rate : 0)) * (growth - 1), rate);
}

} // namespace

Double FV(Double rate, Double periods, Double payment, Double presentValue, bool atStart) {
    if (rate == 0) return -(presentValue + payment * periods);
    const Double grown = growth(rate, periods);
    return -basic::Add(presentValue * grown, payment * valueOfPayments(rate, grown, atStart));
}

Double PV(Double rate, Double periods, Double payment, Double futureValue, bool atStart) {
    if (rate == 0) return -(futureValue + payment * periods);
    const Double grown = growth(rate, periods);
    return -basic::Divide(futureValue + payment * valueOfPayments(rate, grown, atStart), grown);
}

Double Pmt(Double rate, Double periods, Double presentValue, Double futureValue, bool atStart) {
    requireArgument(periods != 0);
    if (rate == 0) return -(presentValue + futureValue) / periods;
    const Double grown = growth(rate, periods);
    return -basic::Divide(presentValue * grown + futureValue, valueOfPayments(rate, grown, atStart));
}

Double NPer(Double rate, Double payment, Double presentValue, Double futureValue, bool atStart) {
    requireArgument(rate > -1);
    if (rate == 0) {
        requireArgument(payment != 0);
        return -(presentValue + futureValue) / payment;
    }
    const Double perRate = payment * (1 + (atStart ? rate : 0)) / rate;
    const Double from = presentValue + perRate, to = perRate - futureValue;
    requireArgument(from != 0 && to / from > 0);
    return Log(to / from) / Log(1 + rate);
}

Double IPmt(Double rate, Double period, Double periods, Double presentValue, Double futureValue, bool atStart) {
    requireArgument(period > 0 && period < periods + 1);
    if (atStart && period == 1) return 0;
    const Double payment = Pmt(rate, periods, presentValue, futureValue, atStart);
    // Of payments at the start, the first one is made before any interest.
    if (atStart) return rate * FV(rate, period - 2, payment, presentValue + payment);
    return rate * FV(rate, period - 1, payment, presentValue);
}

Double PPmt(Double rate, Double period, Double periods, Double presentValue, Double futureValue, bool atStart) {
    const Double interest = IPmt(rate, period, periods, presentValue, futureValue, atStart);
    return Pmt(rate, periods, presentValue, futureValue, atStart) - interest;
}

Double Rate(Double periods, Double payment, Double presentValue, Double futureValue, bool atStart, Double guess) {
    requireArgument(periods > 0 && guess > -1);
    return rateOf([&](Double rate) { return FV(rate, periods, payment, presentValue, atStart) - futureValue; }, guess);
}

} // namespace tamarik
