#pragma once
#include <string>
#include <vector>

namespace cli {

/// Returns a make rule for the target. Each prerequisite is also a target without a rule, so that a deleted file does
/// not stop make.
std::string depfileText(const std::string& target, const std::vector<std::string>& prerequisites);

} // namespace cli
