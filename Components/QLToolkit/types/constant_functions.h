#pragma once
// The functions that expressions of constants may call (MS-VBAL 5.6.16.2).
#include "Components/QLToolkit/types/constant_value.h"
#include <optional>
#include <string_view>

namespace qltoolkit {

/// Returns the result of a function, whose name is case-insensitive. Returns nothing for functions that constants may not
/// call.
[[nodiscard]] std::optional<Folded> callConstantFunction(std::string_view name, const ConstantValue& argument);

} // namespace qltoolkit
