#include "Components/QLToolkit/names/array_bounds.h"

namespace qltoolkit {

std::int16_t checkBounds(const Span<Bound>& bounds, Pos pos, Constants& constants, SourceModule& module,
                         const LocalConstants& local) {
    if (bounds.size() > kMostDimensions) module.diagnostics.report(Message::TooManyDimensions, pos);
    for (const auto& bound : bounds) {
        const auto lower = bound.lower ? constants.longOf(*bound.lower, module, local)
                                       : std::optional(static_cast<basic::Long>(module.arrayBase));
        const auto upper = constants.longOf(*bound.upper, module, local);
        if (lower && upper && *lower > *upper) module.diagnostics.report(Message::EmptyRange, bound.upper->pos);
    }
    return static_cast<std::int16_t>(std::min(bounds.size(), kMostDimensions));
}

} // namespace qltoolkit
