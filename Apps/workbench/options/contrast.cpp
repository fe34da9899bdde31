#include "Apps/workbench/options/contrast.h"
#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

double linear(double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

double contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace workbench
