#pragma once
// The constants of conditional compilation that a project sets.
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qltoolkit {

/// Constants of conditional compilation by name. They are added to the predefined QUINLOFT, Win32 and VBA6, and
/// override them.
using ConditionalConstants = std::vector<std::pair<std::string, long>>;

/// Parses the CondComp setting of a project, "Name = 1 : Other = -1". Ignores entries of any other form.
[[nodiscard]] ConditionalConstants parseConditionalConstants(std::string_view);

} // namespace qltoolkit
