#pragma once
#include <string>
#include <vector>

namespace cli {

/// The parsed operands of `dependencies`: [PROJECT] [ACTION] [FILE...].
struct DependencyOperands {
    std::string project, action = "list";
    std::vector<std::string> files;
};

/// The project may be before or after the action. Refusal 2 for an unknown action or a wrong number of files.
DependencyOperands dependencyOperands(const std::vector<std::string>& operands);

} // namespace cli
