#pragma once
// Decimal values in Variants.
#include "Components/Image/code/instruction.h"
#include "Components/Tamarik/numbers/decimal96.h"
#include "Components/Tamarik/values/variant.h"

namespace tamarik {

[[nodiscard]] Variant ofDecimal(const Decimal96& number);
[[nodiscard]] Decimal96 decimalOf(const Variant& v);
/// CDec. Errors 13, 94 and 6.
[[nodiscard]] Variant toDecimal(const Variant& v);
[[nodiscard]] TextBlock* textOfDecimal(Heap& heap, const Variant& v);
[[nodiscard]] double doubleOfDecimal(const Variant& v);
/// Error 6.
[[nodiscard]] std::int64_t currencyOfDecimal(const Variant& v);

/// -1, 0 or 1. At least one of the two numbers is a Decimal.
[[nodiscard]] int compareDecimals(const Variant& a, const Variant& b);
/// The result of an arithmetic operator of which an operand is a Decimal. Errors 6 and 11.
[[nodiscard]] Variant decimalResult(image::VariantOperator op, const Variant& a, const Variant& b);

} // namespace tamarik
