#pragma once
// Which types variables, elements and parameters may have.
#include "Components/Image/verify/tables.h"

namespace image {

/// Whether a type is one of elements and of fields of records, and its class or record exists.
[[nodiscard]] bool isElement(const Tables& tables, SlotType type);
/// Whether a variable in slots can have a type; references are in variables of procedures alone.
[[nodiscard]] bool isVariable(const Tables& tables, SlotType type, bool mayRefer);
/// Whether a parameter can have a type: a record is passed by reference.
[[nodiscard]] bool isParameter(const Tables& tables, SlotType type);
/// Whether a function's result can have a type.
[[nodiscard]] bool isResult(const Tables& tables, SlotType type);

} // namespace image
