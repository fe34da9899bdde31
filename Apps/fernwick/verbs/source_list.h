#pragma once
// The source files that `check` goes through.
#include "Basic/code_page.h"
#include "Components/QLToolkit/parser/conditional_constants.h"
#include <string>
#include <vector>

namespace cli {

struct SourceToCheck {
    std::string path;
    qltoolkit::ConditionalConstants constants;
};

struct SourceList {
    std::vector<SourceToCheck> sources;
    /// What kept a project or group from being read: "file: reason".
    std::vector<std::string> problems;
};

/// A source file stands for itself, a project for its components, a group for its projects' ones.
SourceList listSources(const std::vector<std::string>& operands, const basic::CodePage& usual);

} // namespace cli
