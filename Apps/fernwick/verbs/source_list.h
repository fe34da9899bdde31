#pragma once
// The source files for `check`.
#include "Basic/detection/code_page_detection.h"
#include "Components/QLToolkit/parser/conditional_constants.h"
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace cli {

struct SourceToCheck {
    std::string path;
    qltoolkit::ConditionalConstants constants;
    /// That of its project or on the command line; none for a single file, which has its own.
    std::optional<basic::CodePage> page;
    /// Whether the command line names it, not a project.
    bool isNamed = false;
};

struct SourceList {
    std::vector<SourceToCheck> sources;
    /// The projects, and how their code pages were determined.
    std::vector<std::pair<std::string, basic::DetectedCodePage>> projects;
    /// Why projects or groups could not be read: "file: reason".
    std::vector<std::string> problems;
    /// The exit status for the worst of them; 0 for none.
    int status = 0;
};

/// Returns each source file once: those given, the components of projects, those of the projects of groups, and all
/// sources in and below folders, except in hidden ones. `given` is their code page, without which it is detected.
SourceList listSources(const std::vector<std::string>& operands, const std::optional<basic::CodePage>& given);

} // namespace cli
