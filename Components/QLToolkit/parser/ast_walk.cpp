#include "Components/QLToolkit/parser/ast_walk.h"
#include "Components/QLToolkit/parser/expression_walk.h"

namespace qltoolkit {

void forEachExpression(const Module& module, const std::function<void(const Expr&)>& visit) {
    ExpressionWalk walk{visit};
    for (const auto* decl = module.declarations; decl; decl = decl->next) walk.declaration(*decl);
}

} // namespace qltoolkit
