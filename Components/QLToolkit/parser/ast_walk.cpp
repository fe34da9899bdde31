#include "Components/QLToolkit/parser/ast_walk.h"

namespace qltoolkit {

namespace {

/// Expressions wait in a list rather than on the stack, so that long chains cost no depth. Statements nest no
/// deeper than the parser allows.
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

void ExpressionWalk::block(const Block& block) {
    for (const auto* stmt = block.first; stmt; stmt = stmt->next) statement(*stmt);
}

void ExpressionWalk::statement(const Stmt& stmt) {
    if (!blockStatement(stmt) && !fileStatement(stmt)) simpleStatement(stmt);
}

bool ExpressionWalk::blockStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::If:
        for (const auto& branch : as<IfStmt>(stmt).branches) {
            expression(branch.condition);
            block(branch.body);
        }
        return true;
    case StmtKind::Select:
        expression(as<SelectStmt>(stmt).value);
        for (const auto& branch : as<SelectStmt>(stmt).branches) {
            for (const auto& item : branch.items) {
                expression(item.value);
                expression(item.to);
            }
            block(branch.body);
        }
        return true;
    case StmtKind::For: {
        const auto& loop = as<ForStmt>(stmt);
        for (const auto* part : {loop.variable, loop.from, loop.to, loop.step}) expression(part);
        block(loop.body);
        return true;
    }
    case StmtKind::ForEach:
        expression(as<ForEachStmt>(stmt).variable);
        expression(as<ForEachStmt>(stmt).in);
        block(as<ForEachStmt>(stmt).body);
        return true;
    case StmtKind::Do:
        expression(as<DoStmt>(stmt).condition);
        block(as<DoStmt>(stmt).body);
        return true;
    case StmtKind::While:
    case StmtKind::With:
        expression(as<BodyStmt>(stmt).value);
        block(as<BodyStmt>(stmt).body);
        return true;
    default: return false;
    }
}

bool ExpressionWalk::fileStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::Print:
    case StmtKind::PrintFile:
    case StmtKind::WriteFile:
        expression(as<PrintStmt>(stmt).target);
        for (const auto& item : as<PrintStmt>(stmt).items) expression(item.value);
        return true;
    case StmtKind::Open: {
        const auto& open = as<OpenStmt>(stmt);
        for (const auto* part : {open.path, open.number, open.recordLength}) expression(part);
        return true;
    }
    case StmtKind::Get:
    case StmtKind::Put:
    case StmtKind::Seek:
    case StmtKind::Lock:
    case StmtKind::Unlock:
    case StmtKind::LineInput:
    case StmtKind::Width:
    case StmtKind::NameAs: {
        const auto& file = as<FileStmt>(stmt);
        for (const auto* part : {file.first, file.second, file.third}) expression(part);
        return true;
    }
    case StmtKind::Erase:
    case StmtKind::Close:
    case StmtKind::InputFile:
        for (const auto* item : as<ListStmt>(stmt).items) expression(item);
        return true;
    default: return false;
    }
}

void ExpressionWalk::simpleStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::Let:
    case StmtKind::Set:
    case StmtKind::LSet:
    case StmtKind::RSet:
        expression(as<AssignStmt>(stmt).target);
        expression(as<AssignStmt>(stmt).value);
        break;
    case StmtKind::MidAssign: {
        const auto& mid = as<MidAssignStmt>(stmt);
        for (const auto* part : {mid.target, mid.start, mid.length, mid.value}) expression(part);
        break;
    }
    case StmtKind::Call: expression(as<CallStmt>(stmt).call); break;
    case StmtKind::Local:
        for (const auto& each : as<LocalStmt>(stmt).variables) variable(each);
        break;
    case StmtKind::LocalConst:
        for (const auto& each : as<LocalConstStmt>(stmt).constants) constant(each);
        break;
    case StmtKind::ReDim:
        for (const auto& item : as<ReDimStmt>(stmt).items) {
            expression(item.target);
            bounds(item.bounds);
            type(item.type);
        }
        break;
    case StmtKind::OnGoTo:
    case StmtKind::OnGoSub: expression(as<OnJumpStmt>(stmt).value); break;
    case StmtKind::RaiseEvent: arguments(as<RaiseEventStmt>(stmt).arguments); break;
    default: break;
    }
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
    default: break; // options and hidden attributes hold no code
    }
}

} // namespace

void forEachExpression(const Module& module, const std::function<void(const Expr&)>& visit) {
    ExpressionWalk walk{visit};
    for (const auto* decl = module.declarations; decl; decl = decl->next) walk.declaration(*decl);
}

} // namespace qltoolkit
