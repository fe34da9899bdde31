#pragma once
// The operators on Variants. Objects were replaced by the values of their default members.
#include "Components/Image/code/instruction.h"
#include "Components/Tamarik/values/variant.h"

namespace tamarik {

/// A new Variant. Errors 13, 6, 11, 5, 93.
[[nodiscard]] Variant operate(Heap& heap, const image::OperationWord& word, const Variant& a, const Variant& b);
[[nodiscard]] Variant operateUnary(Heap& heap, image::VariantOperator op, const Variant& a);

[[nodiscard]] Variant arithmeticResult(image::VariantOperator op, const Variant& a, const Variant& b);
[[nodiscard]] Variant sumOrJoin(Heap& heap, const image::OperationWord& word, const Variant& a, const Variant& b);
[[nodiscard]] Variant negated(const Variant& a);
[[nodiscard]] Variant logicalResult(image::VariantOperator op, const Variant& a, const Variant& b);
[[nodiscard]] Variant logicalNot(const Variant& a);
/// -1, 0 or 1. Neither is Null.
[[nodiscard]] int compareVariants(Heap& heap, const image::OperationWord& word, const Variant& a, const Variant& b);

[[nodiscard]] image::OperationWord operationOf(std::uint32_t packed);

} // namespace tamarik
