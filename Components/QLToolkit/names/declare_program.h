#pragma once
// The passes over a whole program before its code is bound.
#include "Components/QLToolkit/names/check_program.h"

namespace qltoolkit {

/// Runs a pass over a module. Returns false for a module with too many errors, which is left.
template <class Pass>
bool within(const Pass& pass) {
    try {
        pass();
        return true;
    } catch (const TooManyErrors&) { return false; }
}

/// The libraries of the language, and then those of the project.
[[nodiscard]] std::vector<const language::Library*> librariesOf(const ProgramOptions& options);
void addLibraries(Program& program, const ProgramOptions& options);

/// Declares and resolves all modules, after the libraries. Returns whether all declarations are known, whether they are
/// right or not.
bool declareProgram(Program& program, const std::vector<ParsedModule>& modules, const ProgramOptions& options);

} // namespace qltoolkit
