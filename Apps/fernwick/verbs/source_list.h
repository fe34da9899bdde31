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
};

struct SourceList {
    std::vector<SourceToCheck> sources;
    /// Why projects or groups could not be read: "file: reason".
    std::vector<std::string> problems;
};

/// Returns each source file once: those given, the components of projects, those of the projects of groups, and all
/// sources in and below folders, except in hidden ones.
SourceList listSources(const std::vector<std::string>& operands, const basic::CodePage& usual);

} // namespace cli
