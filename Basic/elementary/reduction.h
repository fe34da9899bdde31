#pragma once
// Reduces angles to the first quarter turns.
#include "Basic/elementary/double_parts.h"

namespace basic::elementary {

struct ReducedAngle {
    unsigned quarter; ///< quarter turns, modulo 4
    DoublePair rest;  ///< from -pi/4 to pi/4
};

/// Subtracts quarter turns, exactly for angles of any size.
ReducedAngle reduceAngle(double x) noexcept;

} // namespace basic::elementary
