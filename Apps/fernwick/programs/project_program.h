#pragma once
// A project as a program that can run.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"
#include "Apps/fernwick/output/report.h"
#include "Components/QLToolkit/code/code_generator.h"
#include "Components/Tamarik/vm/program.h"
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace cli {

struct ProjectProgram {
    std::shared_ptr<const tamarik::Program> program; ///< null for a project with errors
    std::vector<qltoolkit::EntryPoint> entries;
    std::map<std::string, std::string> paths; ///< of source files, by their names

    [[nodiscard]] std::string pathOf(const std::string& file) const;
};

enum class StartObject { SubMain, None };

/// Compiles the project of the command line, and verifies the image as a device would. Errors are printed, or added to the
/// report, which receives the exit status. Refusal 1 for a project that cannot run.
ProjectProgram compileProgram(const Options& options, StartObject start, Console& console, Report& report);

} // namespace cli
