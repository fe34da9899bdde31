#pragma once
// Makes the described libraries part of a program.
#include "Components/Language/library.h"
#include "Components/QLToolkit/names/program.h"

namespace qltoolkit {

/// Adds the libraries behind those that the program has already. Types that no library of the program describes fit
/// everywhere.
void addLibraries(Program& program, const std::vector<const language::Library*>& libraries);

} // namespace qltoolkit
