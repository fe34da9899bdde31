#include "Components/Language/tables/tables.h"

namespace language {

const std::string_view kMathTable = R"(
Module Math
  Function Abs(Number) pure ' The absolute value of a number
  Function Atn(Number As Double) As Double pure ' The arctangent, in radians
  Function Cos(Number As Double) As Double pure ' The cosine of an angle in radians
  Function Exp(Number As Double) As Double pure ' e raised to a power
  Function Log(Number As Double) As Double pure ' The natural logarithm
  Sub Randomize(Optional Number) ' Starts the random numbers from a seed or from the clock
  Function Rnd(Optional Number) As Single ' A random number from 0 to less than 1
  Function Round(Number, Optional NumDigitsAfterDecimal As Long) pure ' Rounds to a number of decimals; halves to even
  Function Sgn(Number) pure ' The sign of a number: -1, 0 or 1
  Function Sin(Number As Double) As Double pure ' The sine of an angle in radians
  Function Sqr(Number As Double) As Double pure ' The square root
  Function Tan(Number As Double) As Double pure ' The tangent of an angle in radians
)";

} // namespace language
