#pragma once
// Brings results of Decimal96's arithmetic into 96 bits.
#include "Components/Tamarik/numbers/decimal96.h"
#include "Components/Tamarik/numbers/wide.h"

namespace tamarik {

/// Whether anything other than 0 was cut off below the last digit of a number.
enum class Below : bool { Nothing, Something };

/// Divides by ten to the power of `digits`, rounding halves to even.
Wide roundedDown(Wide number, int digits, Below below = Below::Nothing);

/// Drops as many decimals as needed. Error 6 if the whole part has more than 96 bits.
Decimal96 fitted(const Wide& number, int scale, bool negative, Below below = Below::Nothing);

} // namespace tamarik
