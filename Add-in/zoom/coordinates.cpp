#include "Add-in/zoom/coordinates.h"
#include "Basic/runtime_error.h"
#include <cmath>
#include <limits>

namespace fernwick {

basic::Integer toDesigner(std::int64_t zoomed, std::int32_t ZoomLevel) {
    using Limits = std::numeric_limits<basic::Integer>;
    const double place = std::nearbyint(double(zoomed) / ZoomLevel);
    const bool fits = place >= Limits::min() && place <= Limits::max();
    if (!fits) throw basic::RuntimeError(basic::kOverflow);
    return basic::Integer(place);
}

} // namespace fernwick
