#pragma once
#include "Apps/workbench/options/declared_options.h"

namespace workbench {

/// The grid of the form designers.
struct DesignGrid {
    int pixels = kGridPixels.usual;
    bool isVisible = kGridVisible.usual, snaps = kGridSnaps.usual;

    /// The distance in pixels by which things move.
    int step() const { return snaps ? pixels : 1; }
};

inline DesignGrid storedGrid() { return {kGridPixels.stored(), kGridVisible.stored(), kGridSnaps.stored()}; }

} // namespace workbench
