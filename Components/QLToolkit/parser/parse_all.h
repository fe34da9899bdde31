#pragma once
// Parses the files of a project, several at a time.
#include "Components/QLToolkit/parser/parse.h"

namespace qltoolkit {

/// Parses the files in parallel. The results are in the order of the files, and the symbols the same as if the files had
/// been parsed in this order, for any number of threads.
[[nodiscard]] std::vector<ParseResult> parseModules(const std::vector<const SourceText*>& sources, SymbolTable& symbols,
                                                    const ConditionalConstants& constants, unsigned threads);

} // namespace qltoolkit
