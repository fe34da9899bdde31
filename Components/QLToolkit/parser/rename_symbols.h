#pragma once
// Gives the names of a tree other symbols.
#include "Components/QLToolkit/parser/ast.h"
#include <vector>

namespace qltoolkit {

/// Replaces each symbol of the tree by `symbols[symbol]`.
void renameSymbols(Module& module, const std::vector<Symbol>& symbols);

} // namespace qltoolkit
