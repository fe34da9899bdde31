#pragma once
// Elementary functions with the same result on every machine, within one unit in the last place; the functions of the C
// library differ between machines. Arguments are finite.

namespace basic::elementary {

double sine(double x) noexcept;
double cosine(double x) noexcept;
double tangent(double x) noexcept;
double arctangent(double x) noexcept;

/// e to the power of x; infinity for an overflow.
double exponential(double x) noexcept;

/// The natural logarithm of a positive number.
double logarithm(double x) noexcept;

/// A positive number to the power of `exponent`; infinity for an overflow.
double power(double base, double exponent) noexcept;

} // namespace basic::elementary
