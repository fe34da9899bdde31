// Statements that begin with a name: calls in both forms, assignments, and methods with a grammar of their own.
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
                        : at(Keyword::Me)                         ? make<Expr>(Expr{ExprKind::Me, 0, pos})
                                                                  : name();
    if (first->kind == ExprKind::Me) advance();
    const Expr* target = postfix(first, true);
    if (at(TokenKind::Equal)) return assignTo(pos, target);
    if (lastName(target) == known_.print) return make<PrintStmt>(stmtHead(StmtKind::Print, pos), target, printItems());
    if (target->kind == ExprKind::Index) return callWithParentheses(pos, as<IndexExpr>(*target));
    if (target->kind != ExprKind::Name && target->kind != ExprKind::Member && target->kind != ExprKind::Bang)
        failHere(Message::CallTargetExpected);
    if (endsStatement()) return make<CallStmt>(stmtHead(StmtKind::Call, pos), target);
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
    return make<AssignStmt>(stmtHead(StmtKind::Let, pos), target, expression());
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
    return make<CallStmt>(stmtHead(StmtKind::Call, pos), call, true);
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

// `f (a)`, `f (a), b` and `f (a) & b, c`: what stood in parentheses was the first argument or began it.
Stmt* Parser::callWithParentheses(Pos pos, const IndexExpr& call) {
    const auto& inner = call.arguments;
    if (inner.size() == 2 && inner[0].name == Symbol::None && drawsAtCoordinates(call.callee))
        return coordinateCall(pos, call.callee, &call);
    if (inner.empty() && endsStatement()) return make<CallStmt>(stmtHead(StmtKind::Call, pos), &call);
    if (inner.size() != 1 || !inner[0].value || inner[0].name != Symbol::None || inner[0].byVal)
        fail(Message::CallParentheses, call.pos);
    ListBuilder<Argument> arguments{scratch_.arguments};
    const Expr* first = make<UnaryExpr>(Expr{ExprKind::Paren, 0, call.pos}, inner[0].value);
    arguments.add({binaryRest(first, 0)});
    if (accept(TokenKind::Comma)) restOfArguments(arguments);
    return makeCall(pos, call.callee, arguments);
}

Stmt* Parser::makeCall(Pos pos, const Expr* callee, ListBuilder<Argument>& arguments) {
    checkArguments(arguments);
    if (callee->kind == ExprKind::Name && as<NameExpr>(*callee).name == known_.name && arguments.size() == 1 &&
        accept(Keyword::As))
        return make<FileStmt>(stmtHead(StmtKind::NameAs, pos), arguments[0].value, expression(), nullptr);
    const auto* call = make<IndexExpr>(Expr{ExprKind::Index, 0, callee->pos}, callee, arguments.finish(module_.arena));
    return make<CallStmt>(stmtHead(StmtKind::Call, pos), call);
}

void Parser::restOfArguments(ListBuilder<Argument>& arguments) {
    for (;;) {
        if (at(TokenKind::Comma) || endsStatement())
            arguments.add({});
        else
            arguments.add(argument());
        if (!accept(TokenKind::Comma)) return;
    }
}

Span<Argument> Parser::argumentsInParentheses() {
    advance();
    if (accept(TokenKind::RightParen)) return {};
    ListBuilder<Argument> arguments{scratch_.arguments};
    for (;;) {
        if (at(TokenKind::Comma) || at(TokenKind::RightParen))
            arguments.add({});
        else
            arguments.add(argument());
        if (!accept(TokenKind::Comma)) break;
    }
    expect(TokenKind::RightParen, Message::ParenthesisExpected);
    checkArguments(arguments);
    return arguments.finish(module_.arena);
}

Argument Parser::argument() {
    Argument a;
    if (tok_.isWord() && lexer_.assignsByName(tok_)) {
        a.name = symbolOf(tok_);
        advance();
        advance();
    }
    a.byVal = accept(Keyword::ByVal);
    if (at(TokenKind::Hash) && !lexer_.readDate(tok_)) advance(); // Input(5, #1)
    a.value = expression();
    if (inReDim_ && at(Keyword::To)) {
        const Pos pos = tok_.begin;
        advance();
        const Expr* upper = expression();
        a.value = make<BinaryExpr>(Expr{ExprKind::Range, 0, pos}, a.value, upper);
    }
    return a;
}

// Behind an argument by name only arguments by name may follow.
void Parser::checkArguments(const ListBuilder<Argument>& arguments) {
    bool named = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (named && arguments[i].name == Symbol::None)
            fail(Message::PositionalAfterNamed, arguments[i].value ? arguments[i].value->pos : here());
        named |= arguments[i].name != Symbol::None;
    }
}

Stmt* Parser::coordinateCall(Pos pos, const Expr* callee, const IndexExpr* first) {
    ListBuilder<Argument> arguments{scratch_.arguments};
    arguments.add({coordinates(first)});
    if (accept(TokenKind::Comma)) restOfArguments(arguments);
    return makeCall(pos, callee, arguments);
}

// [Step] (x, y) [- [Step] (x, y)], or only the part from the minus on. `first`: (x, y) was read as arguments.
const Expr* Parser::coordinates(const IndexExpr* first) {
    auto* c = make<CoordinatesExpr>(Expr{ExprKind::Coordinates, 0, first ? first->pos : tok_.begin}, false, false,
                                    nullptr, nullptr, nullptr, nullptr);
    if (first) {
        c->x1 = first->arguments[0].value;
        c->y1 = first->arguments[1].value;
        if (!c->x1 || !c->y1) fail(Message::CoordinatesExpected, first->pos);
    } else if (!at(TokenKind::Minus)) {
        c->step1 = accept(Keyword::Step);
        point(c->x1, c->y1);
    }
    if (!accept(TokenKind::Minus)) return c;
    c->step2 = accept(Keyword::Step);
    point(c->x2, c->y2);
    return c;
}

void Parser::point(const Expr*& x, const Expr*& y) {
    expect(TokenKind::LeftParen, Message::CoordinatesExpected);
    x = expression();
    expect(TokenKind::Comma, Message::CommaExpected);
    y = expression();
    expect(TokenKind::RightParen, Message::ParenthesisExpected);
}

} // namespace qltoolkit
