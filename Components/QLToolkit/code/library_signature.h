#pragma once
// The types with which compiled code calls functions of the language's library.
#include "Components/Image/code/slot_type.h"
#include "Components/QLToolkit/names/entity.h"

namespace qltoolkit {

/// A parameter is a value, but for an array and for what the function assigns to.
[[nodiscard]] image::SlotType librarySlotType(const ParameterInfo& parameter);
/// The result; without a base for a Sub.
[[nodiscard]] Type libraryResult(const Callable& callable);
[[nodiscard]] image::SlotType librarySlotType(const Type& type);

} // namespace qltoolkit
