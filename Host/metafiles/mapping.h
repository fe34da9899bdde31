#pragma once
// From a metafile's logical coordinates to the picture.
#include "Host/metafiles/metafile.h"

namespace host {

/// x' = a x + c y + e, y' = b x + d y + f.
struct Transform {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    DrawnPoint of(DrawnPoint point) const { return {a * point.x + c * point.y + e, b * point.x + d * point.y + f}; }
    /// This one first.
    Transform then(const Transform& next) const;
};

/// One axis: the window is shown in the viewport.
struct Axis {
    double windowOrigin = 0, windowExtent = 1, viewOrigin = 0, viewExtent = 1;

    double scale() const { return windowExtent == 0 ? 1 : viewExtent / windowExtent; }
};

struct Mapping {
    Axis x, y;
    bool isIsotropic = false;
    Transform world, ///< before window and viewport
        device;      ///< after them

    Transform whole() const;
};

} // namespace host
