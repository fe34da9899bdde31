// Type and Enum.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

void Parser::typeDeclaration(Visibility visibility, Pos pos) {
    advance();
    Symbol name = Symbol::None;
    Pos namePos = 0;
    head([&] { name = expectName(&namePos); });
    ListBuilder<Variable> members{scratch_.variables};
    const auto errors = diagnostics_.errors();
    for (skipLineEnds(); !atMemberListEnd(Keyword::Type); skipLineEnds()) {
        errorsBefore_ = diagnostics_.errors();
        try {
            typeMember(members);
            expectEndOfStatement();
        } catch (const SyntaxError&) { recover(); }
    }
    errorsBefore_ = diagnostics_.errors();
    if (members.size() == 0 && diagnostics_.errors() == errors && at(Keyword::End))
        report(Message::TypeMembersMissing, pos);
    addDeclaration(
        make<TypeDecl>(declHead(DeclKind::Type, visibility, pos), name, namePos, members.finish(module_.arena)));
    endMemberList(Keyword::Type, Message::EndTypeMissing, pos);
}

// Any word may be the name of a member, even a reserved one.
void Parser::typeMember(ListBuilder<Variable>& members) {
    if (atRem()) return;
    Variable v{};
    if (!tok_.isWord()) failHere(Message::NameExpected);
    v.pos = tok_.begin;
    v.suffix = at(TokenKind::Identifier) ? tok_.suffix : '\0';
    v.name = symbolOf(tok_);
    advance();
    if (!at(TokenKind::LeftParen) && !at(Keyword::As) && !v.suffix) failHere(Message::AsExpected);
    variableType(v);
    members.add(v);
}

void Parser::enumDeclaration(Visibility visibility, Pos pos) {
    advance();
    Symbol name = Symbol::None;
    Pos namePos = 0;
    head([&] { name = expectName(&namePos); });
    ListBuilder<Constant> members{scratch_.constants};
    for (skipLineEnds(); !atMemberListEnd(Keyword::Enum); skipLineEnds()) {
        errorsBefore_ = diagnostics_.errors();
        try {
            enumMember(members);
            expectEndOfStatement();
        } catch (const SyntaxError&) { recover(); }
    }
    errorsBefore_ = diagnostics_.errors();
    addDeclaration(
        make<EnumDecl>(declHead(DeclKind::Enum, visibility, pos), name, namePos, members.finish(module_.arena)));
    endMemberList(Keyword::Enum, Message::EndEnumMissing, pos);
}

void Parser::enumMember(ListBuilder<Constant>& members) {
    if (atRem()) return;
    Constant c{};
    c.name = expectName(&c.pos);
    if (accept(TokenKind::Equal)) c.value = expression();
    members.add(c);
}

/// Skips a comment that begins with Rem.
bool Parser::atRem() {
    if (!at(Keyword::Rem)) return false;
    lexer_.skipComment();
    advance();
    return true;
}

// Returns true at the End of the list, and at anything that can only follow a missing End.
bool Parser::atMemberListEnd(Keyword kind) {
    if (at(TokenKind::EndOfFile)) return true;
    if (!at(TokenKind::Keyword) || !isReserved(tok_.keyword)) return atPropertyHead();
    switch (tok_.keyword) {
    case Keyword::End: {
        const Token after = lexer_.peek();
        return after.is(kind) || after.is(Keyword::Sub) || after.is(Keyword::Function) || after.is(Keyword::Property);
    }
    case Keyword::Public:
    case Keyword::Private:
    case Keyword::Friend:
    case Keyword::Global:
    case Keyword::Dim:
    case Keyword::Static:
    case Keyword::Sub:
    case Keyword::Function:
    case Keyword::Const:
    case Keyword::Enum:
    case Keyword::Type:
    case Keyword::Declare:
    case Keyword::Option: {
        const Token after = lexer_.peek();
        return !after.is(Keyword::As) && !after.is(TokenKind::LeftParen) && !after.is(TokenKind::Equal);
    }
    default: return false;
    }
}

void Parser::endMemberList(Keyword kind, Message missing, Pos pos) {
    if (!at(Keyword::End) || !lexer_.peek().is(kind)) {
        report(missing, pos);
        cutShort_ = true;
        return;
    }
    advance();
    advance();
    expectEndOfStatement();
}

} // namespace qltoolkit
