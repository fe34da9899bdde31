#pragma once
// Whether a file can be opened as a project, before other projects are closed for it.
#include "Basic/code_page.h"
#include <optional>
#include <string>

namespace host {

/// Parses a project, or the projects of a group until one is readable, or a component. Errors: as readFile; 321 if it is
/// none of them.
void requireOpenable(const std::string& path, const std::optional<basic::CodePage>& codePage);

} // namespace host
