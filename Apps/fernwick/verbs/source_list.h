#pragma once
// The source files for `check`.
#include "Basic/code_page.h"
#include "Components/QLToolkit/parser/conditional_constants.h"
#include <string>
#include <vector>

namespace cli {

struct SourceToCheck {
    std::string path;
    qltoolkit::ConditionalConstants constants;
    /// Whether the command line names it, not a project.
    bool isNamed = false;
};

struct SourceList {
    std::vector<SourceToCheck> sources;
    /// Why projects or groups could not be read: "file: reason".
    std::vector<std::string> problems;
    /// The exit status for the worst of them; 0 for none.
    int status = 0;
};

/// Returns the source files themselves, the components of projects, and those of the projects of groups.
SourceList listSources(const std::vector<std::string>& operands, const basic::CodePage& usual);

} // namespace cli
