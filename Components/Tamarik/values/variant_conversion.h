#pragma once
// Conversions of Variants to the types of the language. Error 94 for Null, 13 for arrays, objects and errors, 6 for what does
// not fit.
#include "Components/Tamarik/values/variant.h"
#include <cstdint>

namespace tamarik {

/// As Boolean, Byte, Integer or Long.
[[nodiscard]] std::int32_t longOf(const Variant& v, image::BaseType type);
/// As Single, Double or Date.
[[nodiscard]] double fractionOf(const Variant& v, image::BaseType type);
[[nodiscard]] std::int64_t currencyOf(const Variant& v);
/// The condition of an If: Null counts as False.
[[nodiscard]] bool isTrue(const Variant& v);

/// Of an error value its number, otherwise the value itself.
[[nodiscard]] inline Variant numberOfError(const Variant& v) { return v.kind == kError ? ofNumber(v.number) : v; }
[[nodiscard]] bool isNumeric(const Variant& v);
/// Whether a kind is stored as a whole number: Boolean, Byte, Integer or Long.
[[nodiscard]] bool isWhole(std::uint16_t kind);

/// A new Variant of a kind that a declared type has.
[[nodiscard]] Variant converted(Heap& heap, const Variant& v, std::uint16_t kind);
/// Assigns; a Variant of a fixed kind keeps it.
void assign(Heap& heap, Variant& target, const Variant& source);

} // namespace tamarik
