// Lists of statements, nested blocks, and recovery from missing or mismatched ends.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

namespace {

constexpr Message unclosedMessage(int blockKind) {
    constexpr Message kMessages[] = {Message::EndProcedureMissing, Message::IfUnclosed, Message::SelectUnclosed,
                                     Message::ForUnclosed,         Message::DoUnclosed, Message::WhileUnclosed,
                                     Message::WithUnclosed};
    return kMessages[blockKind];
}

/// The words with which endsBlock() is concerned. Most statements begin with others.
constexpr auto kMayEndBlock = [] {
    std::array<bool, static_cast<std::size_t>(kLastKeyword) + 1> table{};
    for (const auto k : {Keyword::Sub, Keyword::Function, Keyword::Property, Keyword::Public, Keyword::Private,
                         Keyword::Friend, Keyword::Global, Keyword::Static, Keyword::Else, Keyword::ElseIf,
                         Keyword::EndIf, Keyword::Case, Keyword::Next, Keyword::Loop, Keyword::Wend, Keyword::End})
        table[static_cast<std::size_t>(k)] = true;
    return table;
}();

bool mayEndBlock(const Token& t) {
    return t.is(TokenKind::Keyword) ? kMayEndBlock[static_cast<std::size_t>(t.keyword)] : t.is(TokenKind::EndOfFile);
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

inline bool Parser::mayBeLabel() const {
    if (at(TokenKind::Integer) || at(TokenKind::Long)) return true;
    const bool word = at(TokenKind::Identifier) || (at(TokenKind::Keyword) && !isReserved(tok_.keyword));
    return word && lexer_.colonFollows(tok_);
}

inline void Parser::statementLine(BlockBuilder& body) {
    if (tok_.endsStatement()) return;
    try {
        const bool first = lineStart_;
        lineStart_ = false;
        if (first && mayBeLabel() && label(body)) return; // the end of a block may follow
        if (Stmt* stmt = statement()) body.add(stmt);
        if (!inNextList_ && !cutShort_) expectEndOfStatement();
    } catch (const SyntaxError&) { recover(); }
    cutShort_ = false;
}

// Parses statements up to the end of the innermost open block, or of an enclosing one.
Block Parser::block(BlockKind kind) {
    BlockBuilder body;
    for (;;) {
        errorsBefore_ = diagnostics_.errors();
        if (inNextList_) {
            if (kind == BlockKind::For) break;
            inNextList_ = false;
            stray(Message::NextWithoutFor);
        }
        while (at(TokenKind::EndOfLine) || at(TokenKind::Colon)) {
            lineStart_ |= at(TokenKind::EndOfLine);
            advanceLine();
        }
        if (mayEndBlock(tok_) && endsBlock(kind)) {
            lineStart_ = lineStart_ && atProcedureHead(); // `Case 1: f: g` calls f
            break;
        }
        statementLine(body);
    }
    return body.block;
}

void Parser::expectEndOfStatement() {
    if (!tok_.endsStatement()) failHere(Message::EndOfStatementExpected);
}

bool Parser::label(BlockBuilder& body) {
    const Pos pos = tok_.begin;
    if (at(TokenKind::Integer) || at(TokenKind::Long)) {
        const auto number = static_cast<std::uint32_t>(tok_.integer);
        procedure_->isLabelled = true;
        body.add(make<TargetStmt>(stmtHead(StmtKind::LineNumber, pos), Target{Symbol::None, number, pos}));
        advance();
        accept(TokenKind::Colon);
        return true;
    }
    const Symbol name = symbolOf(tok_);
    if (name == known_.doEvents) return false;
    procedure_->isLabelled = true;
    body.add(make<TargetStmt>(stmtHead(StmtKind::Label, pos), Target{name, 0, pos}));
    advance();
    advance();
    return true;
}

// ---------------------------------------------------------------- ends of blocks

// Returns true if the token ends the innermost block, either properly or because an enclosing block ends or a procedure
// begins. A stray end is reported and skipped.
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

// Reports that the innermost block has no end. If one token ends several blocks, only the first is reported.
bool Parser::unclosed() {
    if (unclosedAt_ != tok_.begin) {
        unclosedAt_ = tok_.begin;
        const auto& open = blocks_.back();
        if (!open.doubtful) report(unclosedMessage(static_cast<int>(open.kind)), open.pos);
    }
    return true;
}

// Parses End Select or End With. It is missing if an enclosing block has ended, which was already reported.
void Parser::endBlock(Keyword which) {
    if (!at(Keyword::End) || !lexer_.peek().is(which)) {
        cutShort_ = true;
        return;
    }
    advance();
    advance();
}

} // namespace qltoolkit
