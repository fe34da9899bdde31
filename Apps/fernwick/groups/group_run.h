#pragma once
// Runs a command for a project, or for all projects of a group.
#include "Apps/fernwick/output/report.h"

namespace cli {

/// Runs the command for the project in `options`. What prevents it is thrown.
using RunProject = Report (*)(const Options& options, Console& console);
/// Prints the outcome for a single project.
using PrintProject = void (*)(const Report& report, const Options& options, Console& console);

/// Returns the outcome for the project in `options`. For a group, its members run in their order, also after a failure;
/// each prints its messages and a closing line, and the report has the worst status of all.
Report runProjects(const Options& options, Console& console, RunProject run);

/// Prints a single project with `print`, and a group as a table.
void printProjects(const Report& report, const Options& options, Console& console, PrintProject print);

} // namespace cli
