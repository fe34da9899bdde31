#pragma once
// The syntax tree of a module.
//
// Nodes are allocated in the module's arena, have no destructors, and refer to the source by byte offset (`pos`).
// `as<T>(node)` casts a node to the struct of its kind. Statements and declarations are lists linked by `next`.
// The depth of a tree is limited (kMaxDepth in parser.h) with one exception: the left side of a chain of operators
// (`a & b & c ...`) or members may be long. Walk it in a loop, not by recursion.
#include "Components/QLToolkit/parser/ast_declarations.h"
#include <vector>

namespace qltoolkit {

/// One parsed file. Its SourceText and SymbolTable must outlive it.
struct Module {
    explicit Module(const SourceText& s) : source(s) {}

    const SourceText& source;
    Arena arena;
    const Decl* declarations = nullptr;     ///< in source order, including the Attributes of the header
    std::vector<std::uint32_t> hiddenLines; ///< physical lines of Attributes within the code, ascending

    /// Returns the line of the code window, from 1, that shows a physical line, or 0 if the line is hidden.
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

/// Returns the value of a string literal as UTF-8.
[[nodiscard]] std::string stringValue(const SourceText&, const StringExpr&);

} // namespace qltoolkit
