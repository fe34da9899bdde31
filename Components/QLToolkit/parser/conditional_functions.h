#pragma once
// The functions that are allowed in #Const and #If.
#include "Components/QLToolkit/parser/conditional.h"

namespace qltoolkit {

/// Returns the result of a function, whose name is case-insensitive. Returns nothing for other functions, and for
/// arguments that the function rejects.
[[nodiscard]] std::optional<ConditionalValue> callConditionalFunction(std::string_view name,
                                                                      const ConditionalValue& argument);

} // namespace qltoolkit
