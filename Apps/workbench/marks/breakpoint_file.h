#pragma once
// The file with the breakpoints of one project, in the user's state.
#include "Apps/workbench/marks/placed_mark.h"
#include <map>

namespace workbench {

/// The breakpoints of components, by name.
using Breakpoints = std::map<QString, std::vector<PlacedMark>>;

/// Reads the breakpoints of the project with this path. A file that is damaged or too large has none.
Breakpoints readBreakpoints(const QString& project);
/// Replaces them; without breakpoints the file is removed. Errors as atomicSave.
void writeBreakpoints(const QString& project, const Breakpoints& breakpoints);

} // namespace workbench
