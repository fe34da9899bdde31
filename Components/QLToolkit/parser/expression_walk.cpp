#include "Components/QLToolkit/parser/expression_walk.h"

namespace qltoolkit {

void ExpressionWalk::expression(const Expr* expr) {
    const auto bottom = waiting_.size();
    wait(expr);
    while (waiting_.size() > bottom) {
        const Expr& next = *waiting_.back();
        waiting_.pop_back();
        visit_(next);
        parts(next);
    }
}

void ExpressionWalk::parts(const Expr& expr) {
    switch (expr.kind) {
    case ExprKind::Member:
    case ExprKind::Bang: wait(as<MemberExpr>(expr).base); break;
    case ExprKind::Index: {
        const auto& index = as<IndexExpr>(expr);
        wait(index.callee);
        for (const auto& argument : index.arguments) wait(argument.value);
        break;
    }
    case ExprKind::Paren:
    case ExprKind::Unary:
    case ExprKind::AddressOf: wait(as<UnaryExpr>(expr).operand); break;
    case ExprKind::Binary:
        wait(as<BinaryExpr>(expr).right);
        wait(as<BinaryExpr>(expr).left);
        break;
    case ExprKind::TypeOf: wait(as<TypeOfExpr>(expr).operand); break;
    case ExprKind::Coordinates: {
        const auto& place = as<CoordinatesExpr>(expr);
        for (const auto* part : {place.x1, place.y1, place.x2, place.y2}) wait(part);
        break;
    }
    default: break;
    }
}

void ExpressionWalk::type(const TypeRef* type) {
    if (type) expression(type->length);
}

void ExpressionWalk::bounds(const Span<Bound>& bounds) {
    for (const auto& bound : bounds) {
        expression(bound.lower);
        expression(bound.upper);
    }
}

void ExpressionWalk::variable(const Variable& variable) {
    type(variable.type);
    bounds(variable.bounds);
}

void ExpressionWalk::constant(const Constant& constant) {
    type(constant.type);
    expression(constant.value);
}

void ExpressionWalk::parameters(const Span<Parameter>& parameters) {
    for (const auto& parameter : parameters) {
        type(parameter.type);
        expression(parameter.defaultValue);
    }
}

void ExpressionWalk::arguments(const Span<Argument>& arguments) {
    for (const auto& argument : arguments) expression(argument.value);
}

void ExpressionWalk::declaration(const Decl& decl) {
    switch (decl.kind) {
    case DeclKind::Variables:
        for (const auto& each : as<VariablesDecl>(decl).variables) variable(each);
        break;
    case DeclKind::Constants:
        for (const auto& each : as<ConstantsDecl>(decl).constants) constant(each);
        break;
    case DeclKind::Type:
        for (const auto& each : as<TypeDecl>(decl).members) variable(each);
        break;
    case DeclKind::Enum:
        for (const auto& each : as<EnumDecl>(decl).members) constant(each);
        break;
    case DeclKind::Declare: {
        const auto& declare = as<DeclareDecl>(decl);
        expression(declare.library);
        expression(declare.alias);
        parameters(declare.signature.parameters);
        break;
    }
    case DeclKind::Event: parameters(as<EventDecl>(decl).parameters); break;
    case DeclKind::Procedure:
        parameters(as<ProcedureDecl>(decl).signature.parameters);
        block(as<ProcedureDecl>(decl).body);
        break;
    default: break; // options and hidden attributes contain no code
    }
}

} // namespace qltoolkit
