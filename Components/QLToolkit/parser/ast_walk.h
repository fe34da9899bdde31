#pragma once
// Visits all expressions of a module.
#include "Components/QLToolkit/parser/ast.h"
#include <functional>

namespace qltoolkit {

/// Calls `visit` for each expression of the module, including nested ones, in no particular order.
void forEachExpression(const Module& module, const std::function<void(const Expr&)>& visit);

} // namespace qltoolkit
