#pragma once
// The two forms of the interpreter.
#include "Components/Tamarik/vm/execution.h"

namespace tamarik {

/// Runs until the program ends, waits or has used its budget.
void interpretByGoto(Execution& machine);
void interpretBySwitch(Execution& machine);

} // namespace tamarik
