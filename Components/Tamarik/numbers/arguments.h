#pragma once
// Checks of arguments.
#include "Basic/runtime_error.h"
#include "Basic/types.h"
#include <cstddef>

namespace tamarik {

/// Error 5 for a bad argument.
inline void requireArgument(bool good) {
    if (!good) throw basic::RuntimeError(basic::kInvalidProcedureCall);
}

/// Error 5 for a negative count.
inline std::size_t requireCount(basic::Long count) {
    requireArgument(count >= 0);
    return static_cast<std::size_t>(count);
}

/// -1 means unlimited, as everywhere in VB.
inline std::size_t countOrAll(basic::Long count) {
    requireArgument(count >= -1);
    return static_cast<std::size_t>(count);
}

} // namespace tamarik
