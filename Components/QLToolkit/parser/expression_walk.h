#pragma once
// Walks declarations, statements and expressions.
#include "Components/QLToolkit/parser/ast.h"
#include <functional>
#include <vector>

namespace qltoolkit {

/// Keeps pending expressions in a list instead of recursing, because chains may be long. Statements are no deeper than
/// the parser allows.
class ExpressionWalk {
public:
    explicit ExpressionWalk(const std::function<void(const Expr&)>& visit) : visit_(visit) {}

    void declaration(const Decl& decl);

private:
    void expression(const Expr* expr);
    void parts(const Expr& expr);
    void type(const TypeRef* type);
    void variable(const Variable& variable);
    void constant(const Constant& constant);
    void parameters(const Span<Parameter>& parameters);
    void bounds(const Span<Bound>& bounds);
    void arguments(const Span<Argument>& arguments);
    void block(const Block& block);
    void statement(const Stmt& stmt);
    bool blockStatement(const Stmt& stmt);
    bool fileStatement(const Stmt& stmt);
    void simpleStatement(const Stmt& stmt);

    void wait(const Expr* expr) {
        if (expr) waiting_.push_back(expr);
    }

    const std::function<void(const Expr&)>& visit_;
    std::vector<const Expr*> waiting_;
};

} // namespace qltoolkit
