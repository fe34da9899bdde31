#pragma once
// Gives declared names their types, and checks what concerns whole declarations.
#include "Components/QLToolkit/names/constants.h"

namespace qltoolkit {

/// Needs all modules declared. Afterwards the program does not change any more.
void resolveModule(Program& program, SourceModule& module, Constants& constants);

/// Needs all modules resolved: interfaces, handlers of events, records that contain themselves.
void checkDeclarations(Program& program, SourceModule& module);

} // namespace qltoolkit
