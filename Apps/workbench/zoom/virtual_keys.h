#pragma once
// The key codes of window messages.
#include <cstdint>

namespace workbench {

/// The virtual key code of a Qt key (Qt::Key), 0 for a key that a designer has no use for.
std::intptr_t virtualKeyOf(int qtKey);
/// The reverse; 0 for an unknown code.
int qtKeyOf(std::intptr_t virtualKey);

} // namespace workbench
