#pragma once
// What assigning a value of one declared type to another needs.
#include "Components/QLToolkit/types/type.h"

namespace qltoolkit {

enum class Coercion : std::uint8_t {
    Same,    ///< nothing to do
    Always,  ///< succeeds for every value
    Checked, ///< may fail with an overflow, error 6
    Parsed,  ///< depends on the text or the Variant: may fail with errors 6, 13 or 94
    Default, ///< through the default member of the object: errors 91, 438, 13
    Never    ///< "Type mismatch" when compiling
};

/// For Let assignments and ByVal arguments. Source: the published language specification, 5.5.1.2.
[[nodiscard]] Coercion coercionOf(ValueType from, ValueType to);

} // namespace qltoolkit
