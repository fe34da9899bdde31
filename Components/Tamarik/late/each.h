#pragma once
// For Each.
#include "Components/Tamarik/vm/execution.h"

namespace tamarik {

/// Makes the walk over an array. Error 92 for one without elements.
[[nodiscard]] Object* walkOverArray(Heap& heap, ArrayBlock* array);
/// Whether the walk over a Variant needs a call of its class; then `beginEach` makes it.
[[nodiscard]] bool isWalkedByCode(const Execution& m, const Variant& v);
/// Makes the walk over the array or object of the runtime. Errors 92, 438, 451.
[[nodiscard]] Object* walkOver(Execution& m, const Variant& v);
void beginEach(Execution& m, const Variant& v, std::uint32_t target);
/// Stores the next element; false at the end. Error 92 for what is no walk.
[[nodiscard]] bool nextEach(Execution& m, Object* walk, Slot* target);

} // namespace tamarik
