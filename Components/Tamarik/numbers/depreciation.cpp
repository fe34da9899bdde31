#include "Components/Tamarik/numbers/depreciation.h"
#include "Basic/arithmetic.h"
#include "Components/Tamarik/numbers/arguments.h"
#include <algorithm>

namespace tamarik {

using basic::Double;

namespace {

void requirePeriod(Double salvage, Double life, Double period) {
    requireArgument(salvage >= 0 && period > 0 && period <= life);
}

} // namespace

Double SLN(Double cost, Double salvage, Double life) {
    requireArgument(life != 0);
    return (cost - salvage) / life;
}

Double SYD(Double cost, Double salvage, Double life, Double period) {
    requirePeriod(salvage, life, period);
    return (cost - salvage) * (life + 1 - period) * 2 / (life * (life + 1));
}

Double DDB(Double cost, Double salvage, Double life, Double period, Double factor) {
    requirePeriod(salvage, life, period);
    requireArgument(factor > 0);
    if (cost <= 0) return 0;
    const Double rest = std::max(0.0, 1 - factor / life);
    const Double before = cost * basic::Power(rest, std::max(0.0, period - 1)),
                 after = cost * basic::Power(rest, period);
    return std::max(0.0, before - std::max(after, salvage));
}

} // namespace tamarik
