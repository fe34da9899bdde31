#pragma once
#include <string>
#include <vector>

namespace cli {

struct DepfileRule {
    std::string target;
    std::vector<std::string> prerequisites;
};

/// Returns the rules for make. Each prerequisite is also a target without a rule, so that a deleted file does not stop
/// make.
std::string depfileText(const std::vector<DepfileRule>& rules);

} // namespace cli
