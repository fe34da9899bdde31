#pragma once
// Checks of everything but the instructions. Each raises a Problem.
#include "Components/Image/verify/tables.h"

namespace image {

/// Checks records and the arrays with bounds.
void checkTypes(const Tables& tables);
/// Checks the variables of modules.
void checkGlobals(const Tables& tables);
/// Checks variables, parameters and results.
void checkProcedureHeads(const Tables& tables);
void checkImports(const Tables& tables, const FindFunction& runtime);
/// Checks classes and their procedures.
void checkClasses(const Tables& tables);
/// Checks modules and the procedure that the program starts with.
void checkModules(const Tables& tables);

} // namespace image
