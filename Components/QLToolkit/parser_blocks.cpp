// Statements in rows and in one another: bodies, If, Select, loops, With, and what to do when their ends don't match.
#include "Components/QLToolkit/node_heads.h"
#include "Components/QLToolkit/parser.h"

namespace compiler {

namespace {

constexpr Message unclosedMessage(int blockKind) {
    constexpr Message kMessages[] = {Message::EndProcedureMissing, Message::IfUnclosed, Message::SelectUnclosed,
                                     Message::ForUnclosed,         Message::DoUnclosed, Message::WhileUnclosed,
                                     Message::WithUnclosed};
    return kMessages[blockKind];
}

} // namespace

void Parser::openBlock(BlockKind kind, Pos pos, bool doubtful) {
    if (statementDepth_ > kMaxDepth || blocks_.size() > kMaxDepth) {
        report(Message::BlocksTooDeep, pos);
        throw ProcedureAbandoned{};
    }
    blocks_.push_back({kind, pos, doubtful});
    ++openCount_[static_cast<std::size_t>(kind)];
}

void Parser::closeBlock() {
    --openCount_[static_cast<std::size_t>(blocks_.back().kind)];
    blocks_.pop_back();
}

// Reads statements up to the end of the innermost block, which has been opened, or of one around it.
Block Parser::block(BlockKind kind) {
    BlockBuilder body;
    for (;;) {
        errorsBefore_ = diagnostics_.errors();
        if (nextGoesOn_) {
            if (kind == BlockKind::For) break;
            nextGoesOn_ = false;
            stray(Message::NextWithoutFor);
        }
        while (at(TokenKind::EndOfLine) || at(TokenKind::Colon)) {
            lineStart_ |= at(TokenKind::EndOfLine);
            advance();
        }
        if (endsBlock(kind)) break;
        statementLine(body);
    }
    return body.block;
}

void Parser::statementLine(BlockBuilder& body) {
    if (tok_.endsStatement()) return;
    try {
        const bool first = lineStart_;
        lineStart_ = false;
        if (first && label(body)) return; // what ends a block may stand behind it
        if (Stmt* stmt = statement()) body.add(stmt);
        if (!nextGoesOn_ && !cutShort_) expectEndOfStatement();
    } catch (const SyntaxError&) { recover(); }
    cutShort_ = false;
}

void Parser::expectEndOfStatement() {
    if (!tok_.endsStatement()) failHere(Message::EndOfStatementExpected);
}

bool Parser::label(BlockBuilder& body) {
    const Pos pos = tok_.begin;
    if (at(TokenKind::Integer) || at(TokenKind::Long)) {
        const auto number = static_cast<std::uint32_t>(tok_.integer);
        body.add(make<TargetStmt>(stmtHead(StmtKind::LineNumber, pos), Target{Symbol::None, number, pos}));
        advance();
        accept(TokenKind::Colon);
        return true;
    }
    const bool word = at(TokenKind::Identifier) || (at(TokenKind::Keyword) && !isReserved(tok_.keyword));
    if (!word || !lexer_.colonFollows(tok_)) return false;
    const Symbol name = symbolOf(tok_);
    if (name == known_.doEvents) return false;
    body.add(make<TargetStmt>(stmtHead(StmtKind::Label, pos), Target{name, 0, pos}));
    advance();
    advance();
    return true;
}

// ---------------------------------------------------------------- ends of blocks

// True when the token ends the innermost block, be it properly or because a block around it ends or a procedure begins.
// A stray end is reported and left out.
bool Parser::endsBlock(BlockKind kind) {
    if (at(TokenKind::EndOfFile)) return kind == BlockKind::Procedure || unclosed();
    if (lineStart_ && kind != BlockKind::Procedure && atProcedureHead()) return unclosed();
    if (lineStart_ && kind == BlockKind::Procedure && atProcedureHead()) return true;
    if (!at(TokenKind::Keyword)) return false;
    switch (tok_.keyword) {
    case Keyword::Else: return closedBy(kind, BlockKind::If, Message::ElseWithoutIf);
    case Keyword::ElseIf: return closedBy(kind, BlockKind::If, Message::ElseWithoutIf);
    case Keyword::EndIf: return closedBy(kind, BlockKind::If, Message::EndIfWithoutIf);
    case Keyword::Case: return closedBy(kind, BlockKind::Select, Message::CaseWithoutSelect);
    case Keyword::Next: return closedBy(kind, BlockKind::For, Message::NextWithoutFor);
    case Keyword::Loop: return closedBy(kind, BlockKind::Do, Message::LoopWithoutDo);
    case Keyword::Wend: return closedBy(kind, BlockKind::While, Message::WendWithoutWhile);
    case Keyword::End: return endKeywordEnds(kind);
    default: return false;
    }
}

bool Parser::endKeywordEnds(BlockKind kind) {
    const Token after = lexer_.peek();
    if (!after.is(TokenKind::Keyword)) return false;
    switch (after.keyword) {
    case Keyword::If: return closedBy(kind, BlockKind::If, Message::EndIfWithoutIf);
    case Keyword::Select: return closedBy(kind, BlockKind::Select, Message::EndSelectWithoutSelect);
    case Keyword::With: return closedBy(kind, BlockKind::With, Message::EndWithWithoutWith);
    case Keyword::Sub:
    case Keyword::Function:
    case Keyword::Property: return kind == BlockKind::Procedure || unclosed();
    default: return false;
    }
}

bool Parser::closedBy(BlockKind inner, BlockKind wanted, Message strayMessage) {
    if (inner == wanted) return true;
    return isOpen(wanted) ? unclosed() : stray(strayMessage);
}

bool Parser::stray(Message message) {
    report(message, tok_.begin, tokenText());
    recover();
    return false;
}

// The innermost block has no end. One token may reveal several: only the first is reported.
bool Parser::unclosed() {
    if (unclosedAt_ != tok_.begin) {
        unclosedAt_ = tok_.begin;
        const auto& open = blocks_.back();
        if (!open.doubtful) report(unclosedMessage(static_cast<int>(open.kind)), open.pos);
    }
    return true;
}

// ---------------------------------------------------------------- If

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
        // A line that ends in Then, or has none, opens a block; the error must not make its End If one more.
        const bool opens = recoverToThen();
        if (!opens) throw;
    }
    if (tok_.endsLine()) return blockIf(pos, test);
    return singleLineIf(pos, test);
}

// True when the line has no Then, or ends with it.
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

// ---------------------------------------------------------------- Select

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

// Only declarations may stand between Select Case and the first Case.
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

// ---------------------------------------------------------------- loops and With

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
    endFor(variable);
    return make<ForEachStmt>(stmtHead(StmtKind::ForEach, pos), variable, in, body);
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
    endFor(variable);
    return make<ForStmt>(stmtHead(StmtKind::For, pos), variable, from, to, step, body);
}

// Next [a [, b ...]]: the names behind a comma belong to the loops around.
void Parser::endFor(const Expr* variable) {
    closeBlock();
    if (!nextGoesOn_ && !at(Keyword::Next)) {
        cutShort_ = true;
        return;
    }
    if (nextGoesOn_ && tok_.endsStatement()) failHere(Message::NameExpected);
    if (!nextGoesOn_) advance();
    nextGoesOn_ = false;
    if (endsStatement()) return;
    const Pos pos = tok_.begin;
    const std::string text = tokenText();
    const Expr* named = reference();
    const bool bothNames = variable && variable->kind == ExprKind::Name && named->kind == ExprKind::Name;
    if (bothNames && as<NameExpr>(*variable).name != as<NameExpr>(*named).name)
        report(Message::NextWrongVariable, pos, text);
    nextGoesOn_ = accept(TokenKind::Comma);
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

// End Select, End With; absent when a block around has ended, which is reported.
void Parser::endBlock(Keyword which) {
    if (!at(Keyword::End) || !lexer_.peek().is(which)) {
        cutShort_ = true;
        return;
    }
    advance();
    advance();
}

} // namespace compiler
