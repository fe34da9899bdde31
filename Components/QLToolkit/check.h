#pragma once
// Checks one file and discards its tree.
#include "Components/QLToolkit/parser/parse.h"
#include <string>
#include <string_view>
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

/// The result for a file that could not be read for this reason.
[[nodiscard]] CheckResult failedRead(const std::string& path, std::string_view reason);

} // namespace qltoolkit
