#pragma once
// Walks the tree of a module.
#include "Components/QLToolkit/parser/ast.h"
#include <vector>

namespace qltoolkit {

/// Calls `visitor.expression(const Expr&)` for each expression in the code of a module, including nested ones, and
/// `visitor.symbol(const Symbol&)` for each symbol in its tree; both once, in no particular order.
///
/// Keeps pending expressions in a list instead of recursing, because chains may be long. Statements are no deeper than
/// the parser allows.
template <class Visitor>
class TreeWalk {
public:
    explicit TreeWalk(Visitor& visitor) : visitor_(visitor) {}

    void module(const Module& module) {
        for (const auto* decl = module.declarations; decl; decl = decl->next) declaration(*decl);
    }

private:
    // Declarations
    void declaration(const Decl& decl);
    void type(const TypeRef* type);
    void variable(const Variable& variable);
    void constant(const Constant& constant);
    void parameters(const Span<Parameter>& parameters);
    void signature(const Signature& signature);
    void bounds(const Span<Bound>& bounds);

    // Statements
    void block(const Block& block) {
        for (const auto* stmt = block.first; stmt; stmt = stmt->next) statement(*stmt);
    }
    void statement(const Stmt& stmt) {
        if (!blockStatement(stmt) && !fileStatement(stmt) && !jump(stmt)) simpleStatement(stmt);
    }
    bool blockStatement(const Stmt& stmt);
    bool fileStatement(const Stmt& stmt);
    bool jump(const Stmt& stmt);
    void simpleStatement(const Stmt& stmt);
    void select(const SelectStmt& stmt);

    // Expressions
    void expression(const Expr* expr);
    void parts(const Expr& expr);
    void argument(const Argument& argument) {
        visitor_.symbol(argument.name);
        wait(argument.value);
    }
    void wait(const Expr* expr) {
        if (expr) waiting_.push_back(expr);
    }

    Visitor& visitor_;
    std::vector<const Expr*> waiting_;
};

template <class Visitor>
void TreeWalk<Visitor>::expression(const Expr* expr) {
    const auto bottom = waiting_.size();
    wait(expr);
    while (waiting_.size() > bottom) {
        const Expr& next = *waiting_.back();
        waiting_.pop_back();
        visitor_.expression(next);
        parts(next);
    }
}

template <class Visitor>
void TreeWalk<Visitor>::parts(const Expr& expr) {
    switch (expr.kind) {
    case ExprKind::Name: visitor_.symbol(as<NameExpr>(expr).name); break;
    case ExprKind::Member:
    case ExprKind::Bang:
        visitor_.symbol(as<MemberExpr>(expr).name);
        wait(as<MemberExpr>(expr).base);
        break;
    case ExprKind::Index:
        wait(as<IndexExpr>(expr).callee);
        for (const auto& each : as<IndexExpr>(expr).arguments) argument(each);
        break;
    case ExprKind::Paren:
    case ExprKind::Unary:
    case ExprKind::AddressOf: wait(as<UnaryExpr>(expr).operand); break;
    case ExprKind::Binary:
        wait(as<BinaryExpr>(expr).right);
        wait(as<BinaryExpr>(expr).left);
        break;
    case ExprKind::New: type(as<NewExpr>(expr).type); break;
    case ExprKind::TypeOf:
        type(as<TypeOfExpr>(expr).type);
        wait(as<TypeOfExpr>(expr).operand);
        break;
    case ExprKind::Coordinates: {
        const auto& place = as<CoordinatesExpr>(expr);
        for (const auto* part : {place.x1, place.y1, place.x2, place.y2}) wait(part);
        break;
    }
    default: break;
    }
}

template <class Visitor>
void TreeWalk<Visitor>::type(const TypeRef* type) {
    if (!type) return;
    visitor_.symbol(type->library);
    visitor_.symbol(type->name);
    expression(type->length);
}

template <class Visitor>
void TreeWalk<Visitor>::bounds(const Span<Bound>& bounds) {
    for (const auto& bound : bounds) {
        expression(bound.lower);
        expression(bound.upper);
    }
}

template <class Visitor>
void TreeWalk<Visitor>::variable(const Variable& variable) {
    visitor_.symbol(variable.name);
    type(variable.type);
    bounds(variable.bounds);
}

template <class Visitor>
void TreeWalk<Visitor>::constant(const Constant& constant) {
    visitor_.symbol(constant.name);
    type(constant.type);
    expression(constant.value);
}

template <class Visitor>
void TreeWalk<Visitor>::parameters(const Span<Parameter>& parameters) {
    for (const auto& parameter : parameters) {
        visitor_.symbol(parameter.name);
        type(parameter.type);
        expression(parameter.defaultValue);
    }
}

template <class Visitor>
void TreeWalk<Visitor>::signature(const Signature& signature) {
    visitor_.symbol(signature.name);
    parameters(signature.parameters);
    type(signature.result);
}

template <class Visitor>
void TreeWalk<Visitor>::declaration(const Decl& decl) {
    switch (decl.kind) {
    case DeclKind::Implements: type(as<ImplementsDecl>(decl).type); break;
    case DeclKind::Variables:
        for (const auto& each : as<VariablesDecl>(decl).variables) variable(each);
        break;
    case DeclKind::Constants:
        for (const auto& each : as<ConstantsDecl>(decl).constants) constant(each);
        break;
    case DeclKind::Type:
        visitor_.symbol(as<TypeDecl>(decl).name);
        for (const auto& each : as<TypeDecl>(decl).members) variable(each);
        break;
    case DeclKind::Enum:
        visitor_.symbol(as<EnumDecl>(decl).name);
        for (const auto& each : as<EnumDecl>(decl).members) constant(each);
        break;
    case DeclKind::Declare:
        expression(as<DeclareDecl>(decl).library);
        expression(as<DeclareDecl>(decl).alias);
        signature(as<DeclareDecl>(decl).signature);
        break;
    case DeclKind::Event:
        visitor_.symbol(as<EventDecl>(decl).name);
        parameters(as<EventDecl>(decl).parameters);
        break;
    case DeclKind::Procedure:
        signature(as<ProcedureDecl>(decl).signature);
        block(as<ProcedureDecl>(decl).body);
        break;
    case DeclKind::Attribute: // its values are no code
        for (const auto& each : as<AttributeDecl>(decl).path) visitor_.symbol(each);
        visitor_.symbol(as<AttributeDecl>(decl).name);
        break;
    default: break;
    }
}

} // namespace qltoolkit

#include "Components/QLToolkit/parser/tree_walk_statements.h" // IWYU pragma: export
