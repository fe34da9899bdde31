#pragma once
// The bounds of arrays with a fixed size.
#include "Components/QLToolkit/names/constants.h"

namespace qltoolkit {

/// Makes an entity an array with these bounds. Reports bounds that are not constants or have no values, and too many
/// dimensions.
void declareBounds(Entity& entity, const Variable& variable, Constants& constants, SourceModule& module,
                   LocalConstants local = nullptr);

inline constexpr std::uint32_t kMostDimensions = 60;
/// Larger arrays are counted as this.
inline constexpr std::uint32_t kMostElements = 1U << 30;

} // namespace qltoolkit
