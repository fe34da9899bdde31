#pragma once
#include "Basic/code_page.h"
#include <string>
#include <vector>

namespace cli {

/// The argument of `info`: a project, or a group with its projects.
struct InfoSubject {
    std::string group; ///< "" for a single project
    std::vector<std::string> projects;
};

/// Refusal for a group that cannot be read. `usual` is the code page of files that are not UTF-8.
InfoSubject infoSubjectOf(const std::string& path, const basic::CodePage& usual);

} // namespace cli
