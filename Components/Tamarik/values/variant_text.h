#pragma once
// Variants as texts.
#include "Components/Tamarik/values/variant.h"
#include <string>

namespace tamarik {

/// What CStr returns; a new reference. Error 94 for Null, 13 for an array or object.
[[nodiscard]] TextBlock* textOf(Heap& heap, const Variant& v);
/// What Print writes: numbers have a blank before, or a sign, and one after.
[[nodiscard]] std::u16string printedText(const Variant& v);

} // namespace tamarik
