#include "Components/Tamarik/numbers/decimal96_rounding.h"
#include "Basic/runtime_error.h"
#include <algorithm>

namespace tamarik {

namespace {

constexpr int kBits = 96;

bool roundsUp(std::uint32_t digit, bool below, const Wide& quotient) {
    return digit > 5 || (digit == 5 && (below || quotient.isOdd()));
}

} // namespace

Wide roundedDown(Wide number, int digits, Below below) {
    bool rest = below == Below::Something;
    std::uint32_t digit = 0;
    for (; digits > 0; --digits) {
        rest = rest || digit != 0;
        digit = number.divide(10);
    }
    if (roundsUp(digit, rest, number)) number.multiplyAdd(1, 1);
    return number;
}

Decimal96 fitted(const Wide& number, int scale, bool negative, Below below) {
    // A digit has more than three bits.
    int drop = std::max({0, scale - kMostDecimals, std::min(scale, (number.bits() - kBits) * 3 / 10)});
    // Always rounds the original number: rounding twice could differ.
    Wide whole = roundedDown(number, drop, below);
    while (whole.bits() > kBits) {
        if (++drop > scale) throw basic::RuntimeError(basic::kOverflow);
        whole = roundedDown(number, drop, below);
    }
    return {{whole.limb(0), whole.limb(1), whole.limb(2)}, scale - drop, negative};
}

} // namespace tamarik
