#pragma once
// Outcomes of the tests of a project, and their formats.
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/programs/project_program.h"
#include "Components/Tamarik/vm/run_error.h"
#include <optional>
#include <string>
#include <vector>

namespace cli {

struct TestResult {
    std::string module, name;
    std::string printed;
    std::optional<tamarik::RunError> error; ///< a failed Debug.Assert, too
    bool isStopped = false;                 ///< by its budget
    double seconds = 0;

    [[nodiscard]] bool isGood() const { return !error && !isStopped; }
};

std::string textOf(const TestResult& result, const ProjectProgram& program);
Json jsonOf(const std::vector<TestResult>& results, const ProjectProgram& program);
std::string junitOf(const std::vector<TestResult>& results, const ProjectProgram& program);

} // namespace cli
