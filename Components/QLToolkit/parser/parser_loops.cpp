// For, Do, While, and With.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"
#include <algorithm>
#include <limits>

namespace qltoolkit {

Stmt* Parser::forStatement() {
    const Nesting nesting{statementDepth_};
    const Pos pos = tok_.begin;
    advance();
    return at(Keyword::Each) ? forEachStatement(pos) : forCounterStatement(pos);
}

Stmt* Parser::forEachStatement(Pos pos) {
    const Expr *variable = nullptr, *in = nullptr;
    advance();
    head([&] {
        variable = reference();
        expect(Keyword::In, Message::InExpected);
        in = expression();
    });
    openBlock(BlockKind::For, pos);
    const Block body = block(BlockKind::For);
    const std::uint16_t lines = linesSince(pos);
    const Expr* next = endFor(variable);
    return make<ForEachStmt>(stmtHead(StmtKind::ForEach, pos), lines, variable, in, body, next);
}

Stmt* Parser::forCounterStatement(Pos pos) {
    const Expr *variable = nullptr, *from = nullptr, *to = nullptr, *step = nullptr;
    head([&] {
        variable = reference();
        expect(TokenKind::Equal, Message::EqualsExpected);
        from = expression();
        expect(Keyword::To, Message::ToExpected);
        to = expression();
        if (accept(Keyword::Step)) step = expression();
    });
    openBlock(BlockKind::For, pos);
    const Block body = block(BlockKind::For);
    const std::uint16_t lines = linesSince(pos);
    const Expr* next = endFor(variable);
    return make<ForStmt>(stmtHead(StmtKind::For, pos), lines, variable, from, to, step, body, next);
}

/// A loop that is longer has the line of its 65535th.
std::uint16_t Parser::linesSince(Pos begin) const {
    const auto lines = source_.lineOf(tok_.begin) - source_.lineOf(begin);
    return static_cast<std::uint16_t>(std::min<std::uint32_t>(lines, std::numeric_limits<std::uint16_t>::max()));
}

// Next [a [, b ...]]: names after a comma belong to the enclosing loops.
const Expr* Parser::endFor(const Expr* variable) {
    closeBlock();
    if (!inNextList_ && !at(Keyword::Next)) {
        cutShort_ = true;
        return nullptr;
    }
    if (inNextList_ && tok_.endsStatement()) failHere(Message::NameExpected);
    if (!inNextList_) advance();
    inNextList_ = false;
    if (endsStatement()) return nullptr;
    const Pos pos = tok_.begin;
    const std::string text = tokenText();
    const Expr* named = reference();
    const bool bothNames = variable && variable->kind == ExprKind::Name && named->kind == ExprKind::Name;
    if (bothNames && as<NameExpr>(*variable).name != as<NameExpr>(*named).name)
        report(Message::NextWrongVariable, pos, text);
    inNextList_ = accept(TokenKind::Comma);
    return named;
}

Stmt* Parser::doStatement() {
    const Nesting nesting{statementDepth_};
    const Pos pos = tok_.begin;
    const Expr* test = nullptr;
    LoopTest atHead = LoopTest::None, atFoot = LoopTest::None;
    advance();
    head([&] { atHead = loopTest(test); });
    openBlock(BlockKind::Do, pos);
    const Block body = block(BlockKind::Do);
    closeBlock();
    if (at(Keyword::Loop)) {
        advance();
        const Pos footPos = tok_.begin;
        atFoot = loopTest(test);
        if (atHead != LoopTest::None && atFoot != LoopTest::None) report(Message::LoopTwoConditions, footPos);
    } else {
        cutShort_ = true;
    }
    return make<DoStmt>(stmtHead(StmtKind::Do, pos), atHead, atFoot, test, body);
}

LoopTest Parser::loopTest(const Expr*& test) {
    if (endsStatement()) return LoopTest::None;
    if (!at(Keyword::While) && !at(Keyword::Until)) failHere(Message::LoopConditionExpected);
    const LoopTest kind = at(Keyword::While) ? LoopTest::While : LoopTest::Until;
    advance();
    test = expression();
    return kind;
}

Stmt* Parser::whileStatement() {
    const Nesting nesting{statementDepth_};
    const Pos pos = tok_.begin;
    const Expr* test = nullptr;
    advance();
    head([&] { test = expression(); });
    openBlock(BlockKind::While, pos);
    const Block body = block(BlockKind::While);
    closeBlock();
    if (!accept(Keyword::Wend)) cutShort_ = true;
    return make<BodyStmt>(stmtHead(StmtKind::While, pos), test, body);
}

Stmt* Parser::withStatement() {
    const Nesting nesting{statementDepth_};
    const Pos pos = tok_.begin;
    const Expr* object = nullptr;
    advance();
    head([&] { object = expression(); });
    openBlock(BlockKind::With, pos);
    const Block body = block(BlockKind::With);
    closeBlock();
    endBlock(Keyword::With);
    return make<BodyStmt>(stmtHead(StmtKind::With, pos), object, body);
}

} // namespace qltoolkit
