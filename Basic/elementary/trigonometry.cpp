// After the algorithms of fdlibm, whose coefficients are used: Copyright (C) 1993 by Sun Microsystems, Inc. All rights
// reserved. Developed at SunPro, a Sun Microsystems, Inc. business. Permission to use, copy, modify, and distribute this
// software is freely granted, provided that this notice is preserved.
#include "Basic/elementary/elementary.h"
#include "Basic/elementary/reduction.h"
#include <cmath>
#include <cstddef>
#include <iterator>

namespace basic::elementary {

namespace {

constexpr double kQuarterPi = 0x1.921FB54442D18p-1;

/// a[0] + x * (a[1] + x * (a[2] + ...)).
template <std::size_t count>
double polynomial(const double (&a)[count], double x) noexcept {
    double sum = a[count - 1];
    for (std::size_t i = count - 1; i-- > 0;) sum = a[i] + x * sum;
    return sum;
}

/// The sine of an angle up to pi / 4.
double smallSine(DoublePair x) noexcept {
    constexpr double kFirst = -1.66666666666666324348e-01;
    constexpr double kOthers[] = {8.33333333332248946124e-03, -1.98412698298579493134e-04, 2.75573137070700676789e-06,
                                  -2.50507602534068634195e-08, 1.58969099521155010221e-10};
    const double z = x.high * x.high, v = z * x.high, r = polynomial(kOthers, z);
    return x.high - ((z * (0.5 * x.low - v * r) - x.low) - v * kFirst);
}

double smallCosine(DoublePair x) noexcept {
    constexpr double kTerms[] = {4.16666666666666019037e-02,  -1.38888888888741095749e-03, 2.48015872894767294178e-05,
                                 -2.75573143513906633035e-07, 2.08757232129817482790e-09,  -1.13596475577881948265e-11};
    const double z = x.high * x.high, r = z * polynomial(kTerms, z), half = 0.5 * z, w = 1.0 - half;
    return w + (((1.0 - w) - half) + (z * r - x.high * x.low));
}

/// The tangent, or its negative reciprocal.
double smallTangent(DoublePair x, bool reciprocal) noexcept {
    constexpr double kFirst = 3.33333333333334091986e-01;
    // The even and odd terms are added up separately.
    constexpr double kOdd[] = {1.33333333333201242699e-01, 2.18694882948595424599e-02, 3.59207910759131235356e-03,
                               5.88041240820264096874e-04, 7.81794442939557092300e-05, -1.85586374855275456654e-05};
    constexpr double kEven[] = {5.39682539762260521377e-02, 8.86323982359930005737e-03, 1.45620945432529025516e-03,
                                2.46463134818469906812e-04, 7.14072491382608190305e-05, 2.59073051863633712884e-05};
    constexpr DoublePair kQuarter = {7.85398163397448278999e-01, 3.06161699786838301793e-17};
    constexpr double kLarge = 0.6744;
    const bool negative = x.high < 0, large = std::abs(x.high) >= kLarge;
    if (large) {
        if (negative) x = {-x.high, -x.low};
        x = {(kQuarter.high - x.high) + (kQuarter.low - x.low), 0};
    }
    const double z = x.high * x.high, w = z * z, s = z * x.high;
    const double r = x.low + z * (s * (polynomial(kOdd, w) + z * polynomial(kEven, w)) + x.low) + kFirst * s;
    const double sum = x.high + r;
    if (large) {
        const double sign = reciprocal ? -1 : 1;
        const double result = sign - 2.0 * (x.high - (sum * sum / (sum + sign) - r));
        return negative ? -result : result;
    }
    if (!reciprocal) return sum;
    const double high = upperHalf(sum), rest = r - (high - x.high), a = -1.0 / sum, t = upperHalf(a);
    return t + a * ((1.0 + t * high) + t * rest);
}

} // namespace

double sine(double x) noexcept {
    if (std::abs(x) <= kQuarterPi) return smallSine({x, 0});
    const auto [quarter, rest] = reduceAngle(x);
    const double size = quarter % 2 == 0 ? smallSine(rest) : smallCosine(rest);
    return quarter < 2 ? size : -size;
}

double cosine(double x) noexcept {
    if (std::abs(x) <= kQuarterPi) return smallCosine({x, 0});
    const auto [quarter, rest] = reduceAngle(x);
    const double size = quarter % 2 == 0 ? smallCosine(rest) : smallSine(rest);
    return quarter == 1 || quarter == 2 ? -size : size;
}

double tangent(double x) noexcept {
    if (std::abs(x) <= kQuarterPi) return smallTangent({x, 0}, false);
    const auto [quarter, rest] = reduceAngle(x);
    return smallTangent(rest, quarter % 2 == 1);
}

double arctangent(double x) noexcept {
    constexpr double kBounds[] = {7.0 / 16, 11.0 / 16, 19.0 / 16, 39.0 / 16};
    constexpr DoublePair kOffsets[] = {{4.63647609000806093515e-01, 2.26987774529616870924e-17},
                                       {7.85398163397448278999e-01, 3.06161699786838301793e-17},
                                       {9.82793723247329054082e-01, 1.39033110312309984516e-17},
                                       {1.57079632679489655800e+00, 6.12323399573676603587e-17}};
    constexpr double kEven[] = {3.33333333333329318027e-01, 1.42857142725034663711e-01, 9.09088713343650656196e-02,
                                6.66107313738753120669e-02, 4.97687799461593236017e-02, 1.62858201153657823623e-02};
    constexpr double kOdd[] = {-1.99999999998764832476e-01, -1.11111104054623557880e-01, -7.69187620504482999495e-02,
                               -5.83357013379057348645e-02, -3.65315727442169155270e-02};
    const double size = std::abs(x);
    std::size_t range = 0;
    while (range < std::size(kBounds) && size >= kBounds[range]) ++range;
    double t = x;
    switch (range) {
    case 0: break;
    case 1: t = (2.0 * size - 1.0) / (2.0 + size); break;
    case 2: t = (size - 1.0) / (size + 1.0); break;
    case 3: t = (size - 1.5) / (1.0 + 1.5 * size); break;
    default: t = -1.0 / size;
    }
    const double z = t * t, w = z * z, sum = t * (z * polynomial(kEven, w) + w * polynomial(kOdd, w));
    if (range == 0) return t - sum;
    const auto offset = kOffsets[range - 1];
    const double result = offset.high - ((sum - offset.low) - t);
    return x < 0 ? -result : result;
}

} // namespace basic::elementary
