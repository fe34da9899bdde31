#pragma once
// Runs applications for hosts without a window.
#include "Components/Tamarik/machine/machine.h"
#include "Components/Tamarik/ports/surroundings.h"
#include <functional>

namespace tamarik {

/// Waits for a number of milliseconds.
using Pause = std::function<void(std::int64_t)>;

/// As Machine::run, but answers what the application waits for: a message is written to the error output and its default button
/// taken; a question of InputBox is answered by a line of the input, whose end is Cancel, and an empty line is the text that is
/// already there.
RunState runWithoutWindow(Machine& machine, std::int64_t budget = std::numeric_limits<std::int64_t>::max(),
                          const Pause& pause = sleepFor);

} // namespace tamarik
