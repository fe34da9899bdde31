#pragma once
// Run-time errors of programs as text and JSON.
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/programs/project_program.h"
#include "Components/Tamarik/vm/run_error.h"
#include <string>

namespace cli {

/// As tamarik::textOf, with the paths of the project's files.
std::string textOf(const tamarik::RunError& error, const ProjectProgram& program);
Json jsonOf(const tamarik::RunError& error, const ProjectProgram& program);

} // namespace cli
