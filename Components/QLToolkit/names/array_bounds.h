#pragma once
// The bounds of arrays with a fixed size.
#include "Components/QLToolkit/names/constants.h"

namespace qltoolkit {

/// Reports bounds that are not constants or have no values, and too many dimensions. Returns the number of dimensions.
std::int16_t checkBounds(const Span<Bound>& bounds, Pos pos, Constants& constants, SourceModule& module,
                         const LocalConstants& local);

inline constexpr std::uint32_t kMostDimensions = 60;

} // namespace qltoolkit
