// After the algorithms of fdlibm, whose coefficients are used: Copyright (C) 1993 by Sun Microsystems, Inc. All rights
// reserved. Developed at SunPro, a Sun Microsystems, Inc. business. Permission to use, copy, modify, and distribute this
// software is freely granted, provided that this notice is preserved.
#include "Basic/elementary/double_parts.h"
#include "Basic/elementary/elementary.h"
#include <cmath>

namespace basic::elementary {

namespace {

constexpr DoublePair kLogTwo = {6.93147180369123816490e-01, 1.90821492927058770002e-10};

} // namespace

double exponential(double x) noexcept {
    constexpr double kMost = 709.782712893383973096, kLeast = -745.13321910194110842,
                     kPerLogTwo = 1.44269504088896338700;
    if (x > kMost) return kInfinity;
    if (x < kLeast) return 0;
    const double k = std::abs(x) > 0.5 * kLogTwo.high ? std::trunc(kPerLogTwo * x + (x < 0 ? -0.5 : 0.5)) : 0;
    const double high = x - k * kLogTwo.high, low = k * kLogTwo.low, rest = high - low, t = rest * rest;
    const double c = rest - t * (1.66666666666666019037e-01 +
                                 t * (-2.77777777770155933842e-03 +
                                      t * (6.61375632143793436117e-05 +
                                           t * (-1.65339022054652515390e-06 + t * 4.13813679705723846039e-08))));
    if (k == 0) return 1.0 - ((rest * c) / (c - 2.0) - rest);
    return std::ldexp(1.0 - ((low - (rest * c) / (2.0 - c)) - high), static_cast<int>(k));
}

double logarithm(double x) noexcept {
    constexpr double kHalfRoot = 0.70710678118654752440;
    int exponent;
    double fraction = std::frexp(x, &exponent);
    if (fraction < kHalfRoot) {
        fraction *= 2;
        --exponent;
    }
    const double f = fraction - 1.0, k = exponent, s = f / (2.0 + f), z = s * s, w = z * z, half = 0.5 * f * f;
    const double even = w * (3.999999999940941908e-01 + w * (2.222219843214978396e-01 + w * 1.531383769920937332e-01));
    const double odd =
        z * (6.666666666666735130e-01 +
             w * (2.857142874366239149e-01 + w * (1.818357216161805012e-01 + w * 1.479819860511658591e-01)));
    return k * kLogTwo.high - ((half - (s * (half + (odd + even)) + k * kLogTwo.low)) - f);
}

} // namespace basic::elementary
