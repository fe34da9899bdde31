#pragma once
// The controls of a form as names of its module.
#include "Components/QLToolkit/names/program.h"

namespace qltoolkit {

/// Declares the controls of a form, and gives its module the members of the form's class. Names that the module
/// declares itself win. Warns of controls whose class a known library does not have.
void declareControls(Program& program, SourceModule& module);

} // namespace qltoolkit
