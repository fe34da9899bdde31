#include "Components/QLToolkit/names/array_bounds.h"
#include <algorithm>

namespace qltoolkit {

void declareBounds(Entity& entity, const Variable& variable, Constants& constants, SourceModule& module,
                   LocalConstants local) {
    const auto& bounds = variable.bounds;
    if (bounds.size() > kMostDimensions) module.diagnostics.report(Message::TooManyDimensions, variable.pos);
    std::int64_t elements = 1;
    for (const auto& bound : bounds) {
        const auto lower = bound.lower ? constants.longOf(*bound.lower, module, local)
                                       : std::optional(static_cast<basic::Long>(module.arrayBase));
        const auto upper = constants.longOf(*bound.upper, module, local);
        if (!lower || !upper) continue;
        if (*lower > *upper) module.diagnostics.report(Message::EmptyRange, bound.upper->pos);
        const auto count = std::int64_t{*upper} - *lower + 1;
        elements =
            std::clamp<std::int64_t>(elements * std::clamp<std::int64_t>(count, 1, kMostElements), 1, kMostElements);
    }
    entity.isStaticArray = true;
    entity.rank = static_cast<std::int16_t>(std::min(bounds.size(), kMostDimensions));
    entity.elements = static_cast<std::uint32_t>(elements);
}

} // namespace qltoolkit
