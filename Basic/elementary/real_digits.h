#pragma once
// Doubles to and from decimal digits, correctly rounded and independent of the locale, also where the C++ library cannot.
#include <string>

namespace basic {

/// Returns a finite, positive number as "d.ddde-xx" with so many digits.
[[nodiscard]] std::string scientificText(double number, int significant);

/// Returns the shortest text that `readReal` makes the number of, or that of a number that is not finite.
[[nodiscard]] std::string shortestText(double number);

/// Reads digits with a decimal exponent, such as "123e-5". False, with `value` unchanged, if the number is too large or
/// so small that it would be 0.
[[nodiscard]] bool readReal(const std::string& text, double& value);

} // namespace basic
