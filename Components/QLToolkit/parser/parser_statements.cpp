// Statements that begin with a keyword, except blocks, jumps and file statements.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

// Returns null for a comment or an Attribute line.
Stmt* Parser::statement() {
    switch (tok_.kind) {
    case TokenKind::Identifier:
    case TokenKind::Dot:
    case TokenKind::Bang: return callOrAssign();
    case TokenKind::Keyword: return keywordStatement();
    default: failHere(Message::StatementExpected);
    }
}

Stmt* Parser::keywordStatement() {
    switch (tok_.keyword) {
    case Keyword::If: return ifStatement();
    case Keyword::Set: return assignment(StmtKind::Set, false);
    case Keyword::Let: return assignment(StmtKind::Let, true);
    case Keyword::LSet: return assignment(StmtKind::LSet, false);
    case Keyword::RSet: return assignment(StmtKind::RSet, false);
    case Keyword::Call: return callStatement();
    case Keyword::Dim: return localVariables(false);
    case Keyword::Static: return localVariables(true);
    case Keyword::Const: return localConstants();
    case Keyword::ReDim: return reDim();
    case Keyword::Erase: return erase();
    case Keyword::Select: return selectStatement();
    case Keyword::For: return forStatement();
    case Keyword::Do: return doStatement();
    case Keyword::While: return whileStatement();
    case Keyword::With: return withStatement();
    case Keyword::GoTo: return jump(StmtKind::GoTo);
    case Keyword::GoSub: return jump(StmtKind::GoSub);
    case Keyword::Return: return simple(StmtKind::Return);
    case Keyword::On: return onStatement();
    case Keyword::Resume: return resume();
    case Keyword::Exit: return exit();
    case Keyword::End: return simple(StmtKind::End);
    case Keyword::Stop: return simple(StmtKind::Stop);
    case Keyword::RaiseEvent: return raiseEvent();
    case Keyword::Open: return open();
    case Keyword::Close: return close();
    case Keyword::Get: return getOrPut(StmtKind::Get);
    case Keyword::Put: return getOrPut(StmtKind::Put);
    case Keyword::Seek: return seek();
    case Keyword::Lock: return lock(StmtKind::Lock);
    case Keyword::Unlock: return lock(StmtKind::Unlock);
    case Keyword::Input: return input();
    case Keyword::Write: return printFile(StmtKind::WriteFile);
    case Keyword::Print: return lexer_.peek().is(TokenKind::Hash) ? printFile(StmtKind::PrintFile) : callOrAssign();
    case Keyword::Line: return lexer_.peek().is(Keyword::Input) ? lineInput() : callOrAssign();
    case Keyword::Width: return lexer_.peek().is(TokenKind::Hash) ? width() : callOrAssign();
    case Keyword::Me: return callOrAssign();
    case Keyword::Attribute:
        if (!atAttribute()) return callOrAssign();
        attribute();
        return nullptr;
    case Keyword::Rem:
        lexer_.skipComment();
        advance();
        return nullptr;
    case Keyword::Private:
    case Keyword::Public:
    case Keyword::Friend:
    case Keyword::Global:
    case Keyword::Type:
    case Keyword::Enum:
    case Keyword::Declare:
    case Keyword::Event:
    case Keyword::Option:
    case Keyword::Implements: failInsideProcedure();
    default: break;
    }
    if (isReserved(tok_.keyword)) failHere(Message::StatementExpected);
    return callOrAssign();
}

Stmt* Parser::simple(StmtKind kind) {
    const Pos pos = tok_.begin;
    advance();
    return make<Stmt>(stmtHead(kind, pos));
}

// Skips all lines of a Type or Enum, which would be further errors.
void Parser::failInsideProcedure() {
    const Pos pos = tok_.begin;
    const std::string text = tokenText();
    if (!at(Keyword::Type) && !at(Keyword::Enum)) advance();
    if (at(Keyword::Type) || at(Keyword::Enum)) {
        const Keyword kind = tok_.keyword;
        report(Message::InsideProcedure, pos, text);
        lexer_.quiet(true);
        const auto atEnd = [&] { return at(Keyword::End) && lexer_.peek().is(kind); };
        while (!at(TokenKind::EndOfFile) && !atEnd() && !(lineStart_ && atProcedureHead())) {
            lineStart_ = at(TokenKind::EndOfLine);
            advanceLine();
        }
        lexer_.quiet(false);
    }
    fail(Message::InsideProcedure, pos, text);
}

Stmt* Parser::localVariables(bool isStatic) {
    const Pos pos = tok_.begin;
    advance();
    return make<LocalStmt>(stmtHead(StmtKind::Local, pos), isStatic, variableList());
}

Stmt* Parser::localConstants() {
    const Pos pos = tok_.begin;
    advance();
    return make<LocalConstStmt>(stmtHead(StmtKind::LocalConst, pos), constantList());
}

Stmt* Parser::assignment(StmtKind kind, bool explicitLet) {
    const Pos pos = tok_.begin;
    advance();
    const Expr* target = reference();
    expect(TokenKind::Equal, Message::EqualsExpected);
    if (target->kind == ExprKind::Me || target->kind == ExprKind::Paren) fail(Message::NotAssignable, target->pos);
    return make<AssignStmt>(stmtHead(kind, pos), explicitLet, target, expression());
}

Stmt* Parser::reDim() {
    const Pos pos = tok_.begin;
    advance();
    const bool preserve = accept(Keyword::Preserve);
    ListBuilder<ReDimItem> items{scratch_.reDimItems};
    do { items.add(reDimItem()); } while (accept(TokenKind::Comma));
    return make<ReDimStmt>(stmtHead(StmtKind::ReDim, pos), preserve, items.finish(module_.arena));
}

// The bounds are the last pair of parentheses: a.b(i).c(1 To 5)
ReDimItem Parser::reDimItem() {
    inReDim_ = true;
    const Expr* target = reference();
    inReDim_ = false;
    if (target->kind != ExprKind::Index) fail(Message::ReDimTarget, target->pos);
    const auto& index = as<IndexExpr>(*target);
    ListBuilder<Bound> list{scratch_.bounds};
    for (const Argument& a : index.arguments) {
        if (!a.value || a.name != Symbol::None) fail(Message::ReDimTarget, target->pos);
        const bool range = a.value->kind == ExprKind::Range;
        list.add(range ? Bound{as<BinaryExpr>(*a.value).left, as<BinaryExpr>(*a.value).right}
                       : Bound{nullptr, a.value});
    }
    if (list.size() == 0) fail(Message::ReDimTarget, target->pos);
    const auto made = list.finish(module_.arena);
    return {index.callee, made, at(Keyword::As) ? asClause(true) : nullptr};
}

Stmt* Parser::erase() {
    const Pos pos = tok_.begin;
    advance();
    ListBuilder<const Expr*> items{scratch_.expressions};
    do { items.add(reference()); } while (accept(TokenKind::Comma));
    return make<ListStmt>(stmtHead(StmtKind::Erase, pos), items.finish(module_.arena));
}

Stmt* Parser::raiseEvent() {
    const Pos pos = tok_.begin;
    advance();
    Pos namePos = 0;
    const Symbol name = expectName(&namePos);
    const auto arguments = at(TokenKind::LeftParen) ? argumentsInParentheses() : Span<Argument>{};
    return make<RaiseEventStmt>(stmtHead(StmtKind::RaiseEvent, pos), name, namePos, arguments);
}

} // namespace qltoolkit
