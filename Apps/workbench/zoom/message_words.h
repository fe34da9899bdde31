#pragma once
// The words that window messages carry.
#include "Add-in/platform/host_windows.h"
#include "Add-in/zoom/coordinates.h"
#include <QPointF>
#include <cmath>
#include <cstdint>

namespace workbench {

/// The hit test code of a window's client area.
inline constexpr int kInClientArea = 1;

/// What exceeds 16 bits is cut off.
inline std::intptr_t wordsOf(int low, int high) {
    return fernwick::MakeDWord(basic::Integer(low), basic::Integer(high));
}

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
