#pragma once
// What instructions do with Variants in slots of the top frame, when it takes more than one line.
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/vm/execution.h"

namespace tamarik {

void arrayToVariant(Execution& m, std::uint32_t target, std::uint32_t source);
void variantToArray(Execution& m, std::uint32_t target, std::uint32_t source);
void shareVariantArray(Execution& m, std::uint32_t target, std::uint32_t source);

/// What VariantToLong and VariantToFloat convert to the type in C.
[[nodiscard]] inline Variant operandOf(const Variant& v, std::uint32_t type) {
    return (type & image::kTakesErrors) != 0 ? numberOfError(v) : v;
}
/// VariantAt and StoreVariantElement, and their forms for a reference, of an array.
void variantElement(Execution& m, const std::uint32_t* ip, const Variant& array);
void storeVariantElement(Execution& m, const std::uint32_t* ip, const Variant& array);
[[nodiscard]] Variant elementWith(Heap& heap, const Variant& array, std::span<const Variant> indexes);
void storeElementWith(Heap& heap, const Variant& array, std::span<const Variant> indexes, const Variant& value);
void storeElement(Heap& heap, ArrayBlock& array, std::uint32_t place, const Variant& value);
void redimensionVariant(Execution& m, const std::uint32_t* ip);
void eraseVariant(Execution& m, std::uint32_t slot);

} // namespace tamarik
