#pragma once
// Finds interest rates by iteration.
#include "Components/Tamarik/numbers/arguments.h"
#include <algorithm>
#include <cmath>

namespace tamarik {

/// Returns a rate above -1 for which `value` is 0, from a guess on, by the secant method. Error 5 if it is not found.
template <class F>
double rateOf(F value, double guess) {
    constexpr int kMostTries = 40;
    constexpr double kFirstStep = 0.01, kPrecise = 1e-14, kEnough = 1e-7;
    double before = guess, now = guess + kFirstStep, valueBefore = value(before), valueNow = value(now);
    if (valueBefore == 0) return before;
    bool isBounded = false;
    for (int i = 0; i < kMostTries && valueNow != 0 && valueNow != valueBefore; ++i) {
        const double next = now - valueNow * (now - before) / (valueNow - valueBefore);
        before = now;
        valueBefore = valueNow;
        isBounded = !(next > -1);
        now = isBounded ? (now - 1) / 2 : next;
        valueNow = value(now);
        if (!isBounded && std::abs(now - before) <= kPrecise * std::max(1.0, std::abs(now))) break;
    }
    requireArgument(valueNow == 0 || (!isBounded && std::abs(now - before) < kEnough));
    return now;
}

} // namespace tamarik
