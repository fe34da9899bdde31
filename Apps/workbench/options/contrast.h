#pragma once
#include <QColor>

namespace workbench {

/// The least contrast of text that the accessibility guidelines accept.
inline constexpr double kReadableContrast = 4.5;

/// The contrast of two colours, from 1 to 21, as the accessibility guidelines define it.
double contrast(const QColor& a, const QColor& b);

} // namespace workbench
