#include "Components/QLToolkit/parser/rename_symbols.h"
#include "Components/QLToolkit/parser/tree_walk.h"

namespace qltoolkit {

namespace {

struct Renamer {
    const std::vector<Symbol>& symbols;

    void expression(const Expr&) {}
    // Nodes are const only to their readers; the module's arena made them writable.
    void symbol(const Symbol& symbol) { const_cast<Symbol&>(symbol) = symbols[static_cast<std::size_t>(symbol)]; }
};

} // namespace

void renameSymbols(Module& module, const std::vector<Symbol>& symbols) {
    Renamer renamer{symbols};
    TreeWalk{renamer}.module(module);
}

} // namespace qltoolkit
