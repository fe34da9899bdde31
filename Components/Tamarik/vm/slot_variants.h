#pragma once
// Slots as Variants and back.
#include "Components/Tamarik/vm/execution.h"

namespace tamarik {

/// Takes over what the slots hold. `type` decides the Variant's kind.
[[nodiscard]] Variant variantOfSlot(const Slot* slots, image::SlotType type);

} // namespace tamarik
