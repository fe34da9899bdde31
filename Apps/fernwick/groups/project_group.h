#pragma once
#include "Basic/code_page.h"
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// The argument of a command: a project, or a group with its projects.
struct ProjectGroup {
    std::string path; ///< "" for a single project
    std::vector<std::string> projects;
};

/// Each project of a group once. `given` is the code page of the group file, without which it is detected. A member that is not a project file is still in the list: opening it fails. Refusal for
/// a group that cannot be read.
ProjectGroup projectGroupOf(const std::string& path, const std::optional<basic::CodePage>& given);

} // namespace cli
