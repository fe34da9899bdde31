#pragma once
// The tree of a module, as the parser builds it and as name checks and code generation read it.
//
// Nodes lie in the module's arena, have no destructors, and refer to the source by byte offset (`pos`).
// `as<T>(node)` goes from a node to its kind's struct. Lists of statements and declarations are linked by `next`.
// How deep a tree can be is bounded (kMaxDepth in parser.h), with one exception: the left side of a chain of
// operators (`a & b & c ...`) and of members may be long; walk it in a loop, not by recursion.
#include "Components/QLToolkit/parser/ast_declarations.h"
#include <vector>

namespace qltoolkit {

/// One parsed file. Needs its SourceText and its SymbolTable to live on.
struct Module {
    explicit Module(const SourceText& s) : source(s) {}

    const SourceText& source;
    Arena arena;
    const Decl* declarations = nullptr;     ///< in the order of the source, those of the head (Attributes) included
    std::vector<std::uint32_t> hiddenLines; ///< physical lines of Attributes inside the code, ascending

    /// The line of the code window, from 1, that shows a physical line; 0 for a line that it hides.
    [[nodiscard]] std::uint32_t codeLine(std::uint32_t physicalLine) const;
};

template <class T>
const T& as(const Expr& e) {
    return static_cast<const T&>(e);
}
template <class T>
const T& as(const Stmt& s) {
    return static_cast<const T&>(s);
}
template <class T>
const T& as(const Decl& d) {
    return static_cast<const T&>(d);
}

/// The value of a string literal as UTF-8.
[[nodiscard]] std::string stringValue(const SourceText&, const StringExpr&);

} // namespace qltoolkit
