#include "Apps/workbench/zoom/virtual_keys.h"
#include <QtGlobal>
#include <array>
#include <qnamespace.h>

namespace workbench {

namespace {

struct KeyCode {
    int qtKey;
    std::intptr_t virtualKey;
};

constexpr std::array kCodes{
    KeyCode{Qt::Key_Backspace, 0x08}, KeyCode{Qt::Key_Tab, 0x09},     KeyCode{Qt::Key_Return, 0x0D},
    KeyCode{Qt::Key_Shift, 0x10},     KeyCode{Qt::Key_Control, 0x11}, KeyCode{Qt::Key_Escape, 0x1B},
    KeyCode{Qt::Key_Space, 0x20},     KeyCode{Qt::Key_PageUp, 0x21},  KeyCode{Qt::Key_PageDown, 0x22},
    KeyCode{Qt::Key_End, 0x23},       KeyCode{Qt::Key_Home, 0x24},    KeyCode{Qt::Key_Left, 0x25},
    KeyCode{Qt::Key_Up, 0x26},        KeyCode{Qt::Key_Right, 0x27},   KeyCode{Qt::Key_Down, 0x28},
    KeyCode{Qt::Key_Insert, 0x2D},    KeyCode{Qt::Key_Delete, 0x2E}};

/// Letters and digits are their own codes in both.
bool isOwnCode(std::intptr_t key) {
    return (key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z);
}

} // namespace

std::intptr_t virtualKeyOf(int qtKey) {
    if (isOwnCode(qtKey)) return qtKey;
    if (qtKey == Qt::Key_Enter) return virtualKeyOf(Qt::Key_Return);
    if (qtKey == Qt::Key_Backtab) return virtualKeyOf(Qt::Key_Tab);
    for (const auto& code : kCodes)
        if (code.qtKey == qtKey) return code.virtualKey;
    return 0;
}

int qtKeyOf(std::intptr_t virtualKey) {
    if (isOwnCode(virtualKey)) return int(virtualKey);
    for (const auto& code : kCodes)
        if (code.virtualKey == virtualKey) return code.qtKey;
    return 0;
}

} // namespace workbench
