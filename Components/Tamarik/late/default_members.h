#pragma once
// Instructions that meet an object where they need a value.
#include "Components/Tamarik/vm/execution.h"

namespace tamarik {

/// Continues the instruction at `ip` when the values of its operands, B and C, are known.
void withValues(Execution& m, const std::uint32_t* ip, int operands);
/// VariantAt and StoreVariantElement of an object: its default member with arguments.
void itemOfObject(Execution& m, const std::uint32_t* ip, const Variant& object);
void storeItemOfObject(Execution& m, const std::uint32_t* ip, const Variant& object);

} // namespace tamarik
