#include "Host/metafiles/mapping.h"
#include <algorithm>
#include <cmath>

namespace host {

Transform Transform::then(const Transform& next) const {
    return {next.a * a + next.c * b, next.b * a + next.d * b,          next.a * c + next.c * d,
            next.b * c + next.d * d, next.a * e + next.c * f + next.e, next.b * e + next.d * f + next.f};
}

Transform Mapping::whole() const {
    double across = x.scale(), down = y.scale();
    if (isIsotropic) {
        const double least = std::min(std::abs(across), std::abs(down));
        across = std::copysign(least, across);
        down = std::copysign(least, down);
    }
    const Transform view{
        across, 0, 0, down, x.viewOrigin - x.windowOrigin * across, y.viewOrigin - y.windowOrigin * down};
    return world.then(view).then(device);
}

} // namespace host
