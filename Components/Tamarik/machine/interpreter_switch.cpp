// The interpreter for compilers without labels as values.
#include "Components/Tamarik/machine/interpreter_headers.h"

namespace tamarik {
#define INTERPRET interpretBySwitch
#include "Components/Tamarik/machine/interpreter.inc"
} // namespace tamarik
