// The interpreter with a jump to the next handler at the end of each one.
#include "Components/Tamarik/machine/interpreter_headers.h"
#ifdef __GNUC__
#pragma GCC diagnostic ignored "-Wpedantic"

namespace tamarik {
#define USES_GOTO
#define INTERPRET interpretByGoto
#include "Components/Tamarik/machine/interpreter.inc"
} // namespace tamarik

#else

namespace tamarik {
void interpretByGoto(Execution& machine) { interpretBySwitch(machine); }
} // namespace tamarik

#endif
