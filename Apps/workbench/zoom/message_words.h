#pragma once
// The words that window messages carry.
#include "Add-in/platform/host_windows.h"
#include <QPointF>
#include <cmath>
#include <cstdint>

namespace workbench {

/// The hit test code of a window's client area.
inline constexpr int kInClientArea = 1;

/// The low and high 16 bits of a parameter.
inline std::intptr_t wordsOf(int low, unsigned high) {
    return std::int32_t((high & 0xFFFF) << 16 | (unsigned(low) & 0xFFFF));
}
inline std::intptr_t wordsOf(int low, int high) { return wordsOf(low, unsigned(high)); }

inline int lowWord(std::intptr_t words) { return std::int16_t(words & 0xFFFF); }
inline int highWord(std::intptr_t words) { return std::int16_t(words >> 16 & 0xFFFF); }

inline std::intptr_t mouseKeys(Qt::KeyboardModifiers keys, bool leftButton) {
    std::intptr_t bits = 0;
    if (leftButton) bits |= fernwick::MK_LBUTTON;
    if (keys & Qt::ShiftModifier) bits |= fernwick::MK_SHIFT;
    if (keys & Qt::ControlModifier) bits |= fernwick::MK_CONTROL;
    return bits;
}

inline Qt::KeyboardModifiers modifiersOf(std::intptr_t mouseKeys) {
    Qt::KeyboardModifiers keys;
    keys.setFlag(Qt::ShiftModifier, mouseKeys & fernwick::MK_SHIFT);
    keys.setFlag(Qt::ControlModifier, mouseKeys & fernwick::MK_CONTROL);
    return keys;
}

/// Fractions of pixels are rounded down.
inline fernwick::WindowPoint wholePoint(const QPointF& at) {
    return {int(std::floor(at.x())), int(std::floor(at.y()))};
}

} // namespace workbench
