// Statements that begin with a name: both forms of calls, assignments, and methods with special syntax.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

namespace {

bool isAssignable(const Expr& e) {
    return e.kind == ExprKind::Name || e.kind == ExprKind::Member || e.kind == ExprKind::Bang ||
           e.kind == ExprKind::Index;
}

} // namespace

Stmt* Parser::callOrAssign() {
    const Pos pos = tok_.begin;
    const Expr* first = at(TokenKind::Dot) || at(TokenKind::Bang) ? withMember()
                        : at(Keyword::Me)                         ? make<Expr>(Expr{ExprKind::Me, 0, 0, pos})
                                                                  : name();
    if (first->kind == ExprKind::Me) advance();
    const Expr* target = atPostfix() ? postfix(first, true) : first;
    if (at(TokenKind::Equal)) return assignTo(pos, target);
    if (lastName(target) == known_.print) return make<PrintStmt>(stmtHead(StmtKind::Print, pos), target, printItems());
    if (target->kind == ExprKind::Index) return callWithParentheses(pos, as<IndexExpr>(*target));
    if (target->kind != ExprKind::Name && target->kind != ExprKind::Member && target->kind != ExprKind::Bang)
        failHere(Message::CallTargetExpected);
    if (endsStatement()) return make<CallStmt>(stmtHead(StmtKind::Call, pos), false, target);
    return callWithoutParentheses(pos, target);
}

Stmt* Parser::assignTo(Pos pos, const Expr* target) {
    if (!isAssignable(*target)) fail(Message::NotAssignable, target->pos);
    if (target->kind == ExprKind::Index && as<IndexExpr>(*target).callee->kind == ExprKind::Name) {
        const auto& index = as<IndexExpr>(*target);
        const Symbol name = as<NameExpr>(*index.callee).name;
        if (name == known_.mid || name == known_.midB) return midAssign(pos, index, name == known_.midB);
    }
    advance();
    return make<AssignStmt>(stmtHead(StmtKind::Let, pos), false, target, expression());
}

Stmt* Parser::midAssign(Pos pos, const IndexExpr& call, bool bytes) {
    const auto& a = call.arguments;
    if (a.size() < 2 || a.size() > 3 || !a[0].value || !a[1].value) fail(Message::MidArguments, pos);
    expect(TokenKind::Equal, Message::EqualsExpected);
    const Expr* length = a.size() == 3 ? a[2].value : nullptr;
    return make<MidAssignStmt>(stmtHead(StmtKind::MidAssign, pos), bytes, a[0].value, a[1].value, length, expression());
}

Stmt* Parser::callStatement() {
    const Pos pos = tok_.begin;
    advance();
    const Expr* call = reference();
    if (!isAssignable(*call)) fail(Message::CallTargetExpected, call->pos);
    return make<CallStmt>(stmtHead(StmtKind::Call, pos), true, call);
}

Symbol Parser::lastName(const Expr* e) const {
    if (e->kind == ExprKind::Name) return as<NameExpr>(*e).name;
    if (e->kind == ExprKind::Member) return as<MemberExpr>(*e).name;
    return Symbol::None;
}

bool Parser::drawsAtCoordinates(const Expr* callee) const {
    const Symbol name = lastName(callee);
    return name == known_.line || name == known_.circle || name == known_.pset || name == known_.scale;
}

// `f a, b`: the token begins the first argument.
Stmt* Parser::callWithoutParentheses(Pos pos, const Expr* callee) {
    if (drawsAtCoordinates(callee) && (at(Keyword::Step) || at(TokenKind::Minus)))
        return coordinateCall(pos, callee, nullptr);
    if (at(TokenKind::RightParen) || at(TokenKind::Semicolon) || at(TokenKind::ColonEqual))
        failHere(Message::EndOfStatementExpected);
    ListBuilder<Argument> arguments{scratch_.arguments};
    restOfArguments(arguments);
    return makeCall(pos, callee, arguments);
}

// `f (a)`, `f (a), b` and `f (a) & b, c`: the parentheses were the first argument or its beginning.
Stmt* Parser::callWithParentheses(Pos pos, const IndexExpr& call) {
    const auto& inner = call.arguments;
    if (inner.size() == 2 && inner[0].name == Symbol::None && drawsAtCoordinates(call.callee))
        return coordinateCall(pos, call.callee, &call);
    if (inner.empty() && endsStatement()) return make<CallStmt>(stmtHead(StmtKind::Call, pos), false, &call);
    if (inner.size() != 1 || !inner[0].value || inner[0].name != Symbol::None || inner[0].byVal)
        fail(Message::CallParentheses, call.pos);
    ListBuilder<Argument> arguments{scratch_.arguments};
    const Expr* first = make<UnaryExpr>(Expr{ExprKind::Paren, 0, 0, call.pos}, inner[0].value);
    arguments.add({binaryRest(first, kWeakest)});
    if (accept(TokenKind::Comma)) restOfArguments(arguments);
    return makeCall(pos, call.callee, arguments);
}

Stmt* Parser::makeCall(Pos pos, const Expr* callee, ListBuilder<Argument>& arguments) {
    checkArguments(arguments);
    if (callee->kind == ExprKind::Name && as<NameExpr>(*callee).name == known_.name && arguments.size() == 1 &&
        accept(Keyword::As))
        return make<FileStmt>(stmtHead(StmtKind::NameAs, pos), arguments[0].value, expression(), nullptr);
    const auto* call =
        make<IndexExpr>(Expr{ExprKind::Index, 0, 0, callee->pos}, callee, arguments.finish(module_.arena));
    return make<CallStmt>(stmtHead(StmtKind::Call, pos), false, call);
}

Stmt* Parser::coordinateCall(Pos pos, const Expr* callee, const IndexExpr* first) {
    ListBuilder<Argument> arguments{scratch_.arguments};
    arguments.add({coordinates(first)});
    if (accept(TokenKind::Comma)) restOfArguments(arguments);
    return makeCall(pos, callee, arguments);
}

} // namespace qltoolkit
