#pragma once
// Events of the program's classes.
#include "Components/Tamarik/vm/execution.h"

namespace tamarik {

/// Assigns to a WithEvents field; its handlers are now the last of the source. Error 91.
void setSource(Execution& m, Object* source, Object* handler, std::uint32_t field);
/// Calls the handlers of an event in the order of their connection; they share what ByRef arguments refer to.
void raiseEvent(Execution& m, const std::uint32_t* ip);

} // namespace tamarik
