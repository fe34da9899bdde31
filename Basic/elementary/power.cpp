// After the algorithms of fdlibm, whose coefficients are used: Copyright (C) 1993 by Sun Microsystems, Inc. All rights
// reserved. Developed at SunPro, a Sun Microsystems, Inc. business. Permission to use, copy, modify, and distribute this
// software is freely granted, provided that this notice is preserved.
#include "Basic/elementary/double_parts.h"
#include "Basic/elementary/elementary.h"
#include <cmath>

namespace basic::elementary {

namespace {

constexpr double kPerLogTwo = 1.44269504088896338700;

/// The binary logarithm of 1 + t, for a small t.
DoublePair logarithmNearOne(double t) noexcept {
    constexpr DoublePair kSplit = {1.44269502162933349609, 1.92596299112661746887e-08};
    const double w = (t * t) * (0.5 - t * (0.3333333333333333333333 - t * 0.25));
    const double u = kSplit.high * t, v = t * kSplit.low - w * kPerLogTwo, high = upperHalf(u + v);
    return {high, v - (high - u)};
}

/// The binary logarithm; `high` has at most 32 bits.
DoublePair binaryLogarithm(double x) noexcept {
    constexpr double kThreeHalves = 1.5, kTwoThirds = 9.61796693925975554329e-01; // the latter is 2 / (3 ln 2)
    constexpr DoublePair kTwoThirdsPair = {9.61796700954437255859e-01, -7.02846165095275826516e-09};
    constexpr DoublePair kLogThreeHalves = {5.84962487220764160156e-01, 1.35003920212974897128e-08};
    int exponent;
    double fraction = 2 * std::frexp(x, &exponent);
    --exponent;
    // 1 or 1.5, whichever is nearer to the fraction or to half of it
    const bool upper = fraction > 0x1.BB67A00000000p0, middle = !upper && fraction > 0x1.3988E00000000p0;
    if (upper) {
        fraction /= 2;
        ++exponent;
    }
    const double nearest = middle ? kThreeHalves : 1.0;
    const double u = fraction - nearest, v = 1.0 / (fraction + nearest), s = u * v, sHigh = upperHalf(s);
    const double sumHigh = upperHalf(fraction + nearest), sumLow = fraction - (sumHigh - nearest);
    const double sLow = v * ((u - sHigh * sumHigh) - sHigh * sumLow);
    const double square = s * s;
    double r =
        square * square *
        (5.99999999999994648725e-01 +
         square * (4.28571428578550184252e-01 +
                   square * (3.33333329818377432918e-01 +
                             square * (2.72728123808534006489e-01 +
                                       square * (2.30660745775561754067e-01 + square * 2.06975017800338417784e-01)))));
    r += sLow * (sHigh + s);
    const double highSquare = sHigh * sHigh, tHigh = upperHalf(3.0 + highSquare + r);
    const double tLow = r - ((tHigh - 3.0) - highSquare);
    const double a = sHigh * tHigh, b = sLow * tHigh + tLow * s, pHigh = upperHalf(a + b), pLow = b - (pHigh - a);
    const DoublePair offset = middle ? kLogThreeHalves : DoublePair{};
    const double zHigh = kTwoThirdsPair.high * pHigh,
                 zLow = kTwoThirdsPair.low * pHigh + pLow * kTwoThirds + offset.low;
    const double t = exponent, high = upperHalf(((zHigh + zLow) + offset.high) + t);
    return {high, zLow - (((high - t) - offset.high) - zHigh)};
}

/// 2 to the power of high + low.
double powerOfTwo(double high, double low) noexcept {
    constexpr double kLog = 6.93147180559945286227e-01, kOverflow = 8.0085662595372944372e-17;
    constexpr DoublePair kLogPair = {6.93147182464599609375e-01, -1.90465429995776804525e-09};
    const double z = high + low;
    if (z > 1024 || (z == 1024 && low + kOverflow > z - high)) return kInfinity;
    if (z < -1075 || (z == -1075 && low <= z - high)) return 0;
    const double n = std::abs(z) > 0.5 ? std::floor(z + 0.5) : 0;
    const double rest = high - n, t = upperHalf(low + rest);
    const double u = t * kLogPair.high, v = (low - (t - rest)) * kLog + t * kLogPair.low, y = u + v, w = v - (y - u);
    const double square = y * y;
    const double p =
        y -
        square * (1.66666666666666019037e-01 +
                  square * (-2.77777777770155933842e-03 +
                            square * (6.61375632143793436117e-05 +
                                      square * (-1.65339022054652515390e-06 + square * 4.13813679705723846039e-08))));
    const double r = (y * p) / (p - 2.0) - (w + y * w);
    return std::ldexp(1.0 - (r - y), static_cast<int>(n));
}

} // namespace

double power(double base, double exponent) noexcept {
    constexpr double kHuge = 0x1p64, kLarge = 0x1p31, kNear = 0x1p-20;
    if (exponent == 0 || base == 1) return 1;
    if (exponent == 1) return base;
    if (exponent == 2) return base * base;
    if (exponent == 0.5) return std::sqrt(base); // exact to the last digit, as it is printed
    const double distance = base - 1.0;
    const bool isNear = std::abs(distance) < kNear, grows = (base > 1) == (exponent > 0);
    if (std::abs(exponent) > kHuge || (std::abs(exponent) > kLarge && !isNear)) return grows ? kInfinity : 0;
    const auto log = std::abs(exponent) > kLarge ? logarithmNearOne(distance) : binaryLogarithm(base);
    const double upper = upperHalf(exponent), low = (exponent - upper) * log.high + exponent * log.low;
    return powerOfTwo(upper * log.high, low);
}

} // namespace basic::elementary
