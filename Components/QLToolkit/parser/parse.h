#pragma once
// The parser's entry point: turns a file's text into a tree and diagnostics.
#include "Components/QLToolkit/parser/ast.h"
#include "Components/QLToolkit/parser/conditional_constants.h"
#include "Components/QLToolkit/source/diagnostic.h"
#include <memory>
#include <vector>

namespace qltoolkit {

struct ParseResult {
    std::unique_ptr<Module> module;      ///< the valid part after errors; null if this is not a VB file
    std::vector<Diagnostic> diagnostics; ///< sorted by position
    std::size_t errors = 0;
};

/// Parses a whole file. `source` and `symbols` must outlive the module.
[[nodiscard]] ParseResult parseModule(const SourceText& source, SymbolTable& symbols,
                                      const ConditionalConstants& constants = {});

} // namespace qltoolkit
