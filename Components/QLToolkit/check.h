#pragma once
// Checks files and discards their trees.
#include "Components/Image/code/code_image.h"
#include "Components/QLToolkit/code/code_generator.h"
#include "Components/QLToolkit/names/check_program.h"
#include "Components/QLToolkit/parser/parse.h"
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qltoolkit {

struct CheckResult {
    std::vector<Diagnostic> diagnostics;
    std::size_t errors = 0;
    std::uint32_t lines = 0; ///< physical lines, head included
};

/// Checks the syntax of one file.
[[nodiscard]] CheckResult checkSource(const SourceText& source, const ConditionalConstants& constants = {});
/// The same for a file that is in memory. The extension of `name` determines the kind of file.
[[nodiscard]] CheckResult checkSource(std::string name, std::string bytes, const ConditionalConstants& constants = {},
                                      const basic::CodePage& = basic::CodePage::windows1252());

/// Checks the files of a project together: the syntax of each, and the names and types of those whose syntax is right. A
/// name that a faulty file may declare is not reported. The results are in the order of the files.
[[nodiscard]] std::vector<CheckResult> checkProject(const std::vector<const SourceText*>& sources,
                                                    const ConditionalConstants& constants,
                                                    const ProgramOptions& options);

struct CompiledProject {
    std::vector<CheckResult> results;
    std::optional<image::CodeImage> code; ///< of a project without errors
    std::vector<EntryPoint> entries;      ///< of its code
};

/// Checks the files of a project and makes their code.
[[nodiscard]] CompiledProject compileProject(const std::vector<const SourceText*>& sources,
                                             const ConditionalConstants& constants, const ProgramOptions& options,
                                             const ImageParts& parts);

/// The result for a file that could not be read for this reason.
[[nodiscard]] CheckResult failedRead(const std::string& path, std::string_view reason);

} // namespace qltoolkit
