#pragma once
// The constants of conditional compilation that a project sets.
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qltoolkit {

/// Constants of conditional compilation by name, as a project's settings give them. QUINLOFT, Win32 and VBA6 are
/// predefined; what stands here comes on top and wins.
using ConditionalConstants = std::vector<std::pair<std::string, long>>;

/// The value of a project's CondComp setting, "Name = 1 : Other = -1". Entries that are not of this form are left out.
[[nodiscard]] ConditionalConstants parseConditionalConstants(std::string_view);

} // namespace qltoolkit
