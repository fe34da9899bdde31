#pragma once
// The arithmetic of window messages and of the zoom.
#include "Basic/types.h"
#include <cstdint>

namespace fernwick {

/// The low and the high word of a message's parameter, each with its sign.
constexpr basic::Integer LoWord(std::intptr_t Value) { return basic::Integer(std::uint16_t(Value)); }
constexpr basic::Integer HiWord(std::intptr_t Value) {
    return basic::Integer(std::uint16_t(std::uint32_t(Value) >> 16));
}
constexpr basic::Long MakeDWord(basic::Integer LoValue, basic::Integer HiValue) {
    return basic::Long(std::uint32_t(std::uint16_t(HiValue)) << 16 | std::uint16_t(LoValue));
}

/// Returns the designer's coordinate for one of the zoom, rounded with halves to even. Error 6 outside 16 bits.
basic::Integer toDesigner(std::int64_t zoomed, std::int32_t ZoomLevel);

} // namespace fernwick
