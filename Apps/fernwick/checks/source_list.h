#pragma once
// The source files for `check`.
#include "Apps/common/checked_project.h"
#include "Apps/fernwick/checks/clean_checks.h"
#include "Basic/code_page.h"
#include "Host/files/text_file.h"
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace cli {

struct SourceToCheck {
    std::string path;
    /// On the command line; without it the file has its own.
    std::optional<basic::CodePage> page;
    /// Whether the command line names it.
    bool isNamed = false;
};

struct ProjectToCheck {
    apps::CheckedProject project;
    /// The lines of its sources, if it is known that nothing will be found.
    std::optional<std::vector<std::uint32_t>> cleanLines = {};
};

struct SourceList {
    std::vector<ProjectToCheck> projects;
    std::vector<SourceToCheck> sources; ///< of no project
    /// Why projects or groups could not be read: "file: reason".
    std::vector<std::string> problems;
    /// The exit status for the worst of them; 0 for none.
    int status = 0;
};

/// Returns the projects and the projects of groups, and the sources of none of them: those given, and all in and below
/// folders, except in hidden ones. `given` is their code page, without which it is detected; the sources
/// that are read for this stay in `contents`. A project that is in `clean` is not read; null reads all.
SourceList listSources(const std::vector<std::string>& operands, const std::optional<basic::CodePage>& given,
                       host::FileContents& contents, const CleanChecks* clean);

} // namespace cli
