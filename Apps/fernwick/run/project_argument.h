#pragma once
#include <string>

namespace cli {

/// Returns the given project, or the only .vbp file in the current folder. Refusal 2 if there is none or several.
std::string projectArgument(const std::string& given);

} // namespace cli
