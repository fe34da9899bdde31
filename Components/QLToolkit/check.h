#pragma once
// Checks one file and discards its tree.
#include "Components/QLToolkit/parser/parse.h"
#include <string>
#include <vector>

namespace qltoolkit {

struct CheckResult {
    std::vector<Diagnostic> diagnostics;
    std::size_t errors = 0;
    std::uint32_t lines = 0; ///< physical lines, head included
};

/// Checks a file that is in memory. The extension of `name` determines the kind of file.
[[nodiscard]] CheckResult checkSource(std::string name, std::string bytes, const ConditionalConstants& constants = {},
                                      const basic::CodePage& = basic::CodePage::windows1252());

/// Checks a file on disk. A file that is missing, unreadable or a folder is reported as a diagnostic, too.
[[nodiscard]] CheckResult checkFile(const std::string& path, const ConditionalConstants& constants = {},
                                    const basic::CodePage& = basic::CodePage::windows1252());

} // namespace qltoolkit
