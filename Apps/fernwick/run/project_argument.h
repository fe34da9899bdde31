#pragma once
#include <string>

namespace cli {

/// The project that a verb works on: the one given, or the only .vbp of the current folder. Refused (2)
/// where there is none or more than one.
std::string projectArgument(const std::string& given);

} // namespace cli
