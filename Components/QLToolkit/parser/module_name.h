#pragma once
// The name of a module.
#include "Components/QLToolkit/parser/ast.h"

namespace qltoolkit {

/// The text after VB_Name; null if a module has none.
const StringExpr* moduleNameLiteral(const Module& module, const SymbolTable& symbols);

/// Returns the VB_Name of a module, or "" if it has none.
std::string moduleName(const Module& module, const SymbolTable& symbols);

} // namespace qltoolkit
