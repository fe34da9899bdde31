#pragma once
// The values of the constants of libraries.
#include "Components/QLToolkit/types/constant_value.h"
#include <string_view>

namespace qltoolkit {

/// Returns the value of a literal as library descriptions have them: a whole number (decimal or &H), a decimal number,
/// a text in quotes, True, False, or Chr(n), also joined by &. Empty for anything else.
[[nodiscard]] ConstantValue libraryConstant(std::string_view literal);

} // namespace qltoolkit
