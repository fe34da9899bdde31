#pragma once
#include <string>
#include <vector>

namespace cli {

/// A rule in make's format: the target and what it was made from. Each prerequisite stands as a target of its own
/// too, so that a file that is gone doesn't stop make.
std::string depfileText(const std::string& target, const std::vector<std::string>& prerequisites);

} // namespace cli
