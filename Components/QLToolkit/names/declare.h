#pragma once
// Enters what a module declares into its scope, without looking at types and values.
#include "Components/QLToolkit/names/program.h"

namespace qltoolkit {

/// Reports names that are declared twice. `name` is the module's own name.
void declareModule(Program& program, SourceModule& module, Symbol name);

/// Enters the modules and the public names of all modules into the tables of the program. Call it after all modules
/// are declared.
void declareProject(Program& program, std::string_view projectName);

} // namespace qltoolkit
