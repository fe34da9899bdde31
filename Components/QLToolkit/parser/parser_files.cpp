// File statements: Open, Close, Get, Put, Seek, Lock, Unlock, Input, Line Input, Width, Print #, Write #.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

const Expr* Parser::fileNumber() {
    accept(TokenKind::Hash);
    if (endsStatement()) fail(Message::FileNumberExpected, here(), tokenText());
    return expression();
}

Stmt* Parser::open() {
    const Pos pos = tok_.begin;
    advance();
    OpenStmt parts{stmtHead(StmtKind::Open, pos),
                   OpenMode::Random,
                   OpenAccess::Default,
                   OpenLock::Default,
                   nullptr,
                   nullptr,
                   nullptr};
    parts.path = expression();
    if (accept(Keyword::For)) parts.mode = openMode();
    if (accept(Keyword::Access)) parts.access = openAccess();
    parts.lock = openLock();
    expect(Keyword::As, Message::AsExpected);
    parts.number = fileNumber();
    if (accept(Keyword::Len)) {
        expect(TokenKind::Equal, Message::EqualsExpected);
        parts.recordLength = expression();
    }
    return make<OpenStmt>(parts);
}

OpenMode Parser::openMode() {
    const auto mode = [&](OpenMode m) {
        advance();
        return m;
    };
    if (at(Keyword::Input)) return mode(OpenMode::Input);
    if (at(Keyword::Output)) return mode(OpenMode::Output);
    if (at(Keyword::Append)) return mode(OpenMode::Append);
    if (at(Keyword::Binary)) return mode(OpenMode::Binary);
    if (at(Keyword::Random)) return mode(OpenMode::Random);
    failHere(Message::ForModeUnknown);
}

OpenAccess Parser::openAccess() {
    const bool read = accept(Keyword::Read);
    const bool write = accept(Keyword::Write);
    if (!read && !write) failHere(Message::FileModeExpected);
    return read && write ? OpenAccess::ReadWrite : read ? OpenAccess::Read : OpenAccess::Write;
}

OpenLock Parser::openLock() {
    if (accept(Keyword::Shared)) return OpenLock::Shared;
    if (!accept(Keyword::Lock)) return OpenLock::Default;
    const bool read = accept(Keyword::Read);
    const bool write = accept(Keyword::Write);
    if (!read && !write) failHere(Message::FileModeExpected);
    return read && write ? OpenLock::ReadWrite : read ? OpenLock::Read : OpenLock::Write;
}

Stmt* Parser::close() {
    const Pos pos = tok_.begin;
    advance();
    ListBuilder<const Expr*> numbers{scratch_.expressions};
    if (!endsStatement()) {
        do { numbers.add(fileNumber()); } while (accept(TokenKind::Comma));
    }
    return make<ListStmt>(stmtHead(StmtKind::Close, pos), numbers.finish(module_.arena));
}

Stmt* Parser::getOrPut(StmtKind kind) {
    const Pos pos = tok_.begin;
    advance();
    const Expr* number = fileNumber();
    expect(TokenKind::Comma, Message::CommaExpected);
    const Expr* record = at(TokenKind::Comma) ? nullptr : expression();
    expect(TokenKind::Comma, Message::CommaExpected);
    return make<FileStmt>(stmtHead(kind, pos), number, record, expression());
}

Stmt* Parser::seek() {
    const Pos pos = tok_.begin;
    advance();
    const Expr* number = fileNumber();
    expect(TokenKind::Comma, Message::CommaExpected);
    return make<FileStmt>(stmtHead(StmtKind::Seek, pos), number, expression(), nullptr);
}

Stmt* Parser::lock(StmtKind kind) {
    const Pos pos = tok_.begin;
    advance();
    const Expr *number = fileNumber(), *from = nullptr, *to = nullptr;
    if (accept(TokenKind::Comma)) {
        if (!at(Keyword::To)) from = expression();
        if (accept(Keyword::To)) to = expression();
    }
    return make<FileStmt>(stmtHead(kind, pos), number, from, to);
}

Stmt* Parser::input() {
    const Pos pos = tok_.begin;
    advance();
    ListBuilder<const Expr*> items{scratch_.expressions};
    items.add(fileNumber());
    expect(TokenKind::Comma, Message::CommaExpected);
    do { items.add(reference()); } while (accept(TokenKind::Comma));
    return make<ListStmt>(stmtHead(StmtKind::InputFile, pos), items.finish(module_.arena));
}

Stmt* Parser::lineInput() {
    const Pos pos = tok_.begin;
    advance();
    advance();
    const Expr* number = fileNumber();
    expect(TokenKind::Comma, Message::CommaExpected);
    return make<FileStmt>(stmtHead(StmtKind::LineInput, pos), number, reference(), nullptr);
}

Stmt* Parser::width() {
    const Pos pos = tok_.begin;
    advance();
    const Expr* number = fileNumber();
    expect(TokenKind::Comma, Message::CommaExpected);
    return make<FileStmt>(stmtHead(StmtKind::Width, pos), number, expression(), nullptr);
}

Stmt* Parser::printFile(StmtKind kind) {
    const Pos pos = tok_.begin;
    advance();
    if (!at(TokenKind::Hash)) failHere(Message::FileNumberExpected);
    const Expr* number = fileNumber();
    if (!endsStatement()) expect(TokenKind::Comma, Message::CommaExpected);
    return make<PrintStmt>(stmtHead(kind, pos), number, printItems());
}

// Values separated, preceded and followed by ; or ,. Adjacent values count as separated by a semicolon.
Span<PrintItem> Parser::printItems() {
    ListBuilder<PrintItem> items{scratch_.printItems};
    while (!endsStatement()) {
        PrintItem item{nullptr, PrintSeparator::None};
        if (!at(TokenKind::Semicolon) && !at(TokenKind::Comma)) item.value = expression();
        if (accept(TokenKind::Semicolon))
            item.separator = PrintSeparator::Semicolon;
        else if (accept(TokenKind::Comma))
            item.separator = PrintSeparator::Comma;
        else if (!endsStatement())
            item.separator = PrintSeparator::Semicolon;
        items.add(item);
    }
    return items.finish(module_.arena);
}

} // namespace qltoolkit
