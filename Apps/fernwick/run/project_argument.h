#pragma once
#include <string>

namespace cli {

/// Returns the given project or group, or the only .vbp file in the given folder; "" is the current one. Refusal 2 if a
/// folder contains none or several.
std::string projectArgument(const std::string& given);

/// Whether an operand is a project, a group or a folder.
bool namesProject(const std::string& operand);

} // namespace cli
