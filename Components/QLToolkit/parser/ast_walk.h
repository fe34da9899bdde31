#pragma once
// Going through all expressions of a module.
#include "Components/QLToolkit/parser/ast.h"
#include <functional>

namespace qltoolkit {

/// Calls `visit` for each expression of the module, those within others too, in no promised order.
void forEachExpression(const Module& module, const std::function<void(const Expr&)>& visit);

} // namespace qltoolkit
