#pragma once
// The way in: a file's text becomes a tree and diagnostics.
#include "Components/QLToolkit/parser/ast.h"
#include "Components/QLToolkit/source/diagnostic.h"
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace compiler {

/// Constants of conditional compilation by name, as a project's settings give them. QUINLOFT, Win32 and VBA6 are
/// predefined; what stands here comes on top and wins.
using ConditionalConstants = std::vector<std::pair<std::string, long>>;

/// The value of a project's CondComp setting, "Name = 1 : Other = -1". Entries that are not of this form are left out.
[[nodiscard]] ConditionalConstants parseConditionalConstants(std::string_view);

struct ParseResult {
    std::unique_ptr<Module> module; ///< what could be understood, after errors too; null when it is no VB file at all
    std::vector<Diagnostic> diagnostics; ///< sorted by place
    std::size_t errors = 0;
};

/// Parses a whole file. `source` and `symbols` must outlive the module.
[[nodiscard]] ParseResult parseModule(const SourceFile& source, SymbolTable& symbols,
                                      const ConditionalConstants& constants = {});

struct CheckResult {
    std::vector<Diagnostic> diagnostics;
    std::size_t errors = 0;
    std::uint32_t lines = 0; ///< physical lines, head included
};

/// Parses a file that is in memory and forgets the tree. `name` gives the kind of file by its extension.
[[nodiscard]] CheckResult checkSource(std::string name, std::string bytes, const ConditionalConstants& constants = {},
                                      const basic::CodePage& = basic::CodePage::windows1252());

/// The same for a file on disk. A file that is missing, unreadable or a folder is a diagnostic, too.
[[nodiscard]] CheckResult checkFile(const std::string& path, const ConditionalConstants& constants = {},
                                    const basic::CodePage& = basic::CodePage::windows1252());

} // namespace compiler
