#pragma once
// Runs applications for hosts without a window.
#include "Components/Tamarik/machine/machine.h"

namespace tamarik {

/// As Machine::run, but answers what the application waits for: a message is written to the error output and its default button
/// taken; a question of InputBox is answered by a line of the input, whose end is Cancel, and an empty line is the text that is
/// already there.
RunState runWithoutWindow(Machine& machine, std::int64_t budget = std::numeric_limits<std::int64_t>::max());

} // namespace tamarik
