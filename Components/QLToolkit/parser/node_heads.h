#pragma once
// The first members of every node, for the parser's make<>().
#include "Components/QLToolkit/parser/ast.h"

namespace qltoolkit {

inline Stmt stmtHead(StmtKind kind, Pos pos) { return {nullptr, pos, kind}; }
inline Expr exprHead(ExprKind kind, Pos pos) { return {kind, 0, 0, pos}; }
inline Expr exprHead(ExprKind kind, Operator op, Pos pos) { return {kind, static_cast<std::uint8_t>(op), 0, pos}; }
inline Decl declHead(DeclKind kind, Visibility visibility, Pos pos) { return {nullptr, pos, kind, visibility}; }

} // namespace qltoolkit
