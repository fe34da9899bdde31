// GoTo, GoSub, On, Resume, Exit.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

/// A label or a line number.
Target Parser::target() {
    const Pos pos = tok_.begin;
    if (at(TokenKind::Integer) || at(TokenKind::Long)) {
        const auto number = static_cast<std::uint32_t>(tok_.integer);
        advance();
        return {Symbol::None, number, pos};
    }
    if (!at(TokenKind::Identifier) && (!at(TokenKind::Keyword) || isReserved(tok_.keyword)))
        failHere(Message::LabelExpected);
    const Symbol name = symbolOf(tok_);
    advance();
    return {name, 0, pos};
}

Stmt* Parser::jump(StmtKind kind) {
    const Pos pos = tok_.begin;
    advance();
    return make<TargetStmt>(stmtHead(kind, pos), target());
}

Stmt* Parser::onStatement() {
    const Pos pos = tok_.begin;
    advance();
    if (at(Keyword::Local) && lexer_.peek().is(Keyword::Error)) advance();
    if (at(Keyword::Error)) {
        const Token after = lexer_.peek();
        if (after.is(Keyword::GoTo) || after.is(Keyword::Resume)) return onError(pos);
    }
    const Expr* value = expression();
    if (!at(Keyword::GoTo) && !at(Keyword::GoSub)) failHere(Message::GoToExpected);
    const StmtKind kind = at(Keyword::GoTo) ? StmtKind::OnGoTo : StmtKind::OnGoSub;
    advance();
    ListBuilder<Target> targets{scratch_.targets};
    do { targets.add(target()); } while (accept(TokenKind::Comma));
    return make<OnJumpStmt>(stmtHead(kind, pos), value, targets.finish(module_.arena));
}

Stmt* Parser::onError(Pos pos) {
    advance();
    if (accept(Keyword::Resume)) {
        expect(Keyword::Next, Message::LabelExpected);
        return make<Stmt>(stmtHead(StmtKind::OnErrorResumeNext, pos));
    }
    advance();
    if (accept(TokenKind::Minus)) {
        if (!at(TokenKind::Integer) || tok_.integer != 1) failHere(Message::LabelExpected);
        advance();
        return make<Stmt>(stmtHead(StmtKind::OnErrorClear, pos));
    }
    const Target where = target();
    if (where.name == Symbol::None && where.number == 0) return make<Stmt>(stmtHead(StmtKind::OnErrorOff, pos));
    return make<TargetStmt>(stmtHead(StmtKind::OnErrorGoTo, pos), where);
}

Stmt* Parser::resume() {
    const Pos pos = tok_.begin;
    advance();
    if (accept(Keyword::Next)) return make<Stmt>(stmtHead(StmtKind::ResumeNext, pos));
    const Target where = endsStatement() ? Target{Symbol::None, 0, pos} : target();
    return make<TargetStmt>(stmtHead(StmtKind::Resume, pos), where);
}

Stmt* Parser::exit() {
    const Pos pos = tok_.begin;
    advance();
    const auto made = [&](StmtKind kind) {
        advance();
        return make<Stmt>(stmtHead(kind, pos));
    };
    if (!at(TokenKind::Keyword)) failHere(Message::ExitKindExpected);
    switch (tok_.keyword) {
    case Keyword::Sub: return made(StmtKind::ExitSub);
    case Keyword::Function: return made(StmtKind::ExitFunction);
    case Keyword::Property: return made(StmtKind::ExitProperty);
    case Keyword::Do: return made(StmtKind::ExitDo);
    case Keyword::For: return made(StmtKind::ExitFor);
    default: failHere(Message::ExitKindExpected);
    }
}

} // namespace qltoolkit
