// If and Select Case.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

const Expr* Parser::condition() {
    const Expr* e = expression();
    if (at(Keyword::GoTo)) return e; // If x GoTo 10
    expect(Keyword::Then, Message::ThenExpected);
    return e;
}

Stmt* Parser::ifStatement() {
    const Pos pos = tok_.begin;
    advance();
    const Expr* test = nullptr;
    try {
        test = condition();
    } catch (const SyntaxError&) {
        // A line without Then, or ending with it, opens a block: its End If must not become a second error.
        const bool opens = recoverToThen();
        if (!opens) throw;
    }
    if (tok_.endsLine()) return blockIf(pos, test);
    return singleLineIf(pos, test);
}

// Returns true if the line has no Then or ends with it.
bool Parser::recoverToThen() {
    lexer_.quiet(true);
    bool sawThen = false;
    while (!tok_.endsLine() && !sawThen) {
        sawThen = at(Keyword::Then);
        lexer_.next(tok_);
    }
    lexer_.quiet(false);
    return tok_.endsLine();
}

Stmt* Parser::singleLineIf(Pos pos, const Expr* test) {
    const Nesting nesting{statementDepth_};
    if (statementDepth_ > kMaxDepth) {
        report(Message::BlocksTooDeep, pos);
        throw ProcedureAbandoned{};
    }
    ListBuilder<IfBranch> branches{scratch_.ifBranches};
    const Block body = singleLineBody();
    branches.add({test, body, pos});
    if (at(Keyword::Else)) {
        const Pos elsePos = tok_.begin;
        advance();
        const Block otherwise = singleLineBody();
        branches.add({nullptr, otherwise, elsePos});
    }
    return make<IfStmt>(stmtHead(StmtKind::If, pos), true, branches.finish(module_.arena));
}

Block Parser::singleLineBody() {
    BlockBuilder body;
    for (;;) {
        while (at(TokenKind::Colon)) advance();
        if (tok_.endsLine() || at(Keyword::Else)) return body.block;
        if (at(TokenKind::Integer)) {
            body.add(make<TargetStmt>(stmtHead(StmtKind::GoTo, tok_.begin), target()));
        } else {
            Stmt* stmt = statement();
            if (stmt) body.add(stmt);
            if (cutShort_) return body.block;
        }
        if (!endsStatement()) failHere(Message::EndOfStatementExpected);
    }
}

Stmt* Parser::blockIf(Pos pos, const Expr* test) {
    const Nesting nesting{statementDepth_};
    ListBuilder<IfBranch> branches{scratch_.ifBranches};
    openBlock(BlockKind::If, pos, test == nullptr);
    const Block body = block(BlockKind::If);
    branches.add({test, body, pos});
    for (bool seenElse = false; at(Keyword::Else) || at(Keyword::ElseIf);) elseBranch(branches, seenElse);
    closeBlock();
    if (at(Keyword::EndIf)) {
        advance();
    } else if (at(Keyword::End) && lexer_.peek().is(Keyword::If)) {
        advance();
        advance();
    } else {
        cutShort_ = true;
    }
    return make<IfStmt>(stmtHead(StmtKind::If, pos), false, branches.finish(module_.arena));
}

void Parser::elseBranch(ListBuilder<IfBranch>& branches, bool& seenElse) {
    const Pos pos = tok_.begin;
    if (seenElse) report(Message::ElseAfterElse, pos, tokenText());
    const bool last = at(Keyword::Else);
    advance();
    const Expr* test = nullptr;
    try {
        if (!last) test = condition();
    } catch (const SyntaxError&) { recover(); }
    seenElse |= last;
    const Block body = block(BlockKind::If);
    branches.add({test, body, pos});
}

Stmt* Parser::selectStatement() {
    const Nesting nesting{statementDepth_};
    const Pos pos = tok_.begin;
    const Expr* value = nullptr;
    advance();
    head([&] {
        expect(Keyword::Case, Message::CaseWordExpected);
        value = expression();
    });
    openBlock(BlockKind::Select, pos);
    ListBuilder<CaseBranch> branches{scratch_.caseBranches};
    const Block before = skipToCase();
    for (bool seenElse = false; at(Keyword::Case);) caseBranch(branches, seenElse);
    closeBlock();
    endBlock(Keyword::Select);
    return make<SelectStmt>(stmtHead(StmtKind::Select, pos), value, before, branches.finish(module_.arena));
}

// Only declarations are allowed between Select Case and the first Case.
Block Parser::skipToCase() {
    const auto errors = diagnostics_.errors();
    skipLineEnds();
    const Block before = block(BlockKind::Select);
    const auto isDeclaration = [](const Stmt& s) {
        return s.kind == StmtKind::Local || s.kind == StmtKind::LocalConst;
    };
    const Stmt* s = before.first;
    while (s && isDeclaration(*s)) s = s->next;
    if (s && diagnostics_.errors() == errors) diagnostics_.report(Message::CaseExpected, s->pos);
    return before;
}

void Parser::caseBranch(ListBuilder<CaseBranch>& branches, bool& seenElse) {
    const Pos pos = tok_.begin;
    errorsBefore_ = diagnostics_.errors();
    if (seenElse) report(Message::CaseAfterElse, pos);
    advance();
    Span<CaseItem> items;
    head([&] {
        ListBuilder<CaseItem> list{scratch_.caseItems};
        if (accept(Keyword::Else)) {
            seenElse = true;
            return;
        }
        do { list.add(caseItem()); } while (accept(TokenKind::Comma));
        items = list.finish(module_.arena);
    });
    const Block body = block(BlockKind::Select);
    branches.add({items, body, pos});
}

CaseItem Parser::caseItem() {
    accept(Keyword::Is);
    const auto compared = [&](CaseTest test) {
        advance();
        return CaseItem{test, expression(), nullptr};
    };
    switch (tok_.kind) {
    case TokenKind::Equal: return compared(CaseTest::Equal);
    case TokenKind::NotEqual: return compared(CaseTest::NotEqual);
    case TokenKind::Less: return compared(CaseTest::Less);
    case TokenKind::LessEqual: return compared(CaseTest::LessEqual);
    case TokenKind::Greater: return compared(CaseTest::Greater);
    case TokenKind::GreaterEqual: return compared(CaseTest::GreaterEqual);
    default: break;
    }
    const Expr* value = expression();
    if (!accept(Keyword::To)) return {CaseTest::Equal, value, nullptr};
    return {CaseTest::Range, value, expression()};
}

} // namespace qltoolkit
