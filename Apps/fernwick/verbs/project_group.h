#pragma once
#include "Basic/code_page.h"
#include <string>
#include <vector>

namespace cli {

/// The argument of a command: a project, or a group with its projects.
struct ProjectGroup {
    std::string path; ///< "" for a single project
    std::vector<std::string> projects;
};

/// Each project of a group once. A member that is not a project file is still in the list: opening it fails. Refusal for
/// a group that cannot be read. `usual` is the code page of files that are not UTF-8.
ProjectGroup projectGroupOf(const std::string& path, const basic::CodePage& usual);

} // namespace cli
