#pragma once
// How people read the parts of code.
#include "Components/Image/code/code_image.h"
#include "Components/Image/code/instruction.h"
#include <string>
#include <string_view>

namespace image {

[[nodiscard]] std::string_view nameOf(BaseType type);
[[nodiscard]] std::string_view nameOf(Pass pass);
[[nodiscard]] std::string_view nameOf(VariantOperator op);
[[nodiscard]] std::string_view nameOf(LateUse use);

/// Returns the beginning of a text without what a terminal would obey; "?" if there is none with this number.
[[nodiscard]] std::string textNumbered(const CodeImage& code, std::uint32_t text);
/// Returns the name of a class with a number from 1, or "class 7" if it is invalid.
[[nodiscard]] std::string className(const CodeImage& code, std::uint32_t number);
/// Returns a name with that of the module, such as "Stack.Push", or "procedure 7" if it is invalid.
[[nodiscard]] std::string procedureName(const CodeImage& code, std::uint32_t number);
/// Returns for example "Long", "Array of Object of class Stack" or "Reference to Record 2".
[[nodiscard]] std::string describe(const CodeImage& code, SlotType type);

} // namespace image
