#pragma once
// Procedures whose names say what calls them: object_Event, and Interface_Member.
#include "Components/QLToolkit/names/program.h"

namespace qltoolkit {

/// The control or WithEvents variable of a module whose events a prefix receives, or null.
[[nodiscard]] const Entity* eventReceiver(Program& program, const Scope& module, std::string_view prefix);

/// Returns an event of a class, or of the class whose members it has; null if it has none.
[[nodiscard]] const Entity* eventOf(const Scope& source, Symbol name);

/// Whether a module's own class calls a procedure of this name: Form_Load, Class_Initialize.
[[nodiscard]] bool isOwnHandler(const Program& program, const SourceModule& module, std::string_view name);

/// Reports to the sink of the program what the parts of the names of a module's handlers mean.
void reportHandlers(Program& program, const SourceModule& module);

} // namespace qltoolkit
