// The interpreter for compilers without labels as values.
#include "Components/Tamarik/vm/interpreter_headers.h"

namespace tamarik {
#define INTERPRET interpretBySwitch
#include "Components/Tamarik/vm/interpreter.inc"
} // namespace tamarik
