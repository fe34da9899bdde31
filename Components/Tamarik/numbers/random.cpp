#include "Components/Tamarik/numbers/random.h"
#include <bit>

namespace tamarik {

namespace {

// Knowledge Base article Q231847 has these.
constexpr std::uint32_t kFactor = 1140671485, kAddend = 12820163, kMask = 0xFFFFFF;

} // namespace

basic::Single Random::value() const noexcept { return static_cast<basic::Single>(state_) / 0x1p24F; }

basic::Single Random::next() noexcept {
    state_ = (state_ * kFactor + kAddend) & kMask;
    return value();
}

basic::Single Random::next(basic::Single argument) noexcept {
    if (argument == 0) return value();
    if (argument < 0) {
        const auto bits = std::bit_cast<std::uint32_t>(argument);
        state_ = (bits + (bits >> 24)) & kMask;
    }
    return next();
}

void Random::randomize(basic::Double seed) noexcept {
    const auto upper = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(seed) >> 32);
    state_ = (state_ & 0xFF0000FF) | (((upper & 0xFFFF) ^ (upper >> 16)) << 8);
}

} // namespace tamarik
