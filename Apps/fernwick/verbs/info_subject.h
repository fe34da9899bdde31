#pragma once
#include <string>
#include <vector>

namespace cli {

/// The argument of `info`: a project, or a group with its projects.
struct InfoSubject {
    std::string group; ///< "" for a single project
    std::vector<std::string> projects;
};

/// Refusal for a group that cannot be read.
InfoSubject infoSubjectOf(const std::string& path);

} // namespace cli
