#pragma once
#include <string>
#include <vector>

namespace cli {

/// The parsed operands of `steps`: [PROJECT] [list | add WHEN COMMAND... | remove WHEN NUMBER... | move WHEN FROM TO].
struct StepOperands {
    std::string project, action = "list";
    /// "pre" or "post"; "" for both (list).
    std::string when;
    std::vector<std::string> commands;
    /// From 1.
    std::vector<std::size_t> numbers;
};

/// The project may be before or after the action. Refusal 2 for anything that does not fit.
StepOperands stepOperands(const std::vector<std::string>& operands);

} // namespace cli
