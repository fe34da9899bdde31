#pragma once
// Conversions between the numeric types, with the errors of the language.
#include <cmath>
#include <cstdint>
#include <limits>

namespace tamarik {

[[nodiscard]] inline bool isFinite(double value) { return std::fabs(value) <= std::numeric_limits<double>::max(); }

// Halves are rounded to even. Error 6 for what does not fit.
[[nodiscard]] std::int32_t toLong(double value);
[[nodiscard]] std::int32_t longOfCurrency(std::int64_t scaled);
[[nodiscard]] std::int64_t toCurrency(double value);
[[nodiscard]] double toSingle(double value);
/// Error 6 outside the years 100 to 9999.
[[nodiscard]] double toDate(double days);

} // namespace tamarik
