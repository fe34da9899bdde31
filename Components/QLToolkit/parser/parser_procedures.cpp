// Procedures and their parameters.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

namespace {

Keyword endWord(ProcedureKind kind) {
    if (kind == ProcedureKind::Sub) return Keyword::Sub;
    return kind == ProcedureKind::Function ? Keyword::Function : Keyword::Property;
}

} // namespace

void Parser::procedure(Visibility visibility, bool isStatic, Pos pos) {
    auto* p =
        make<ProcedureDecl>(declHead(DeclKind::Procedure, visibility, pos), isStatic, Signature{}, Block{}, Pos{0});
    head([&] {
        procedureKind(p->signature.kind);
        signature(p->signature);
    });
    addDeclaration(p);
    openBlock(BlockKind::Procedure, pos);
    procedure_ = p;
    try {
        p->body = block(BlockKind::Procedure);
        errorsBefore_ = diagnostics_.errors();
    } catch (const ProcedureAbandoned&) { skipProcedure(); }
    blocks_.clear();
    openCount_ = {};
    inNextList_ = cutShort_ = false;
    endProcedure(*p);
}

// Called at Sub, Function or Property. Sets `kind` first, so that the End matches even if the next word is missing.
void Parser::procedureKind(ProcedureKind& kind) {
    const bool isProperty = at(Keyword::Property);
    kind = isProperty ? ProcedureKind::PropertyGet : at(Keyword::Sub) ? ProcedureKind::Sub : ProcedureKind::Function;
    advance();
    if (!isProperty || accept(Keyword::Get)) return;
    kind = at(Keyword::Let) ? ProcedureKind::PropertyLet : ProcedureKind::PropertySet;
    if (!accept(Keyword::Let)) expect(Keyword::Set, Message::PropertyKindExpected);
}

void Parser::signature(Signature& s) {
    s.name = expectName(&s.namePos, &s.suffix);
    accept(Keyword::CDecl);
    if (at(TokenKind::LeftParen)) s.parameters = parameters(false, s.kind >= ProcedureKind::PropertyLet);
    if (at(Keyword::As)) {
        if (s.suffix) failHere(Message::SuffixAndType);
        s.result = resultType();
    }
}

const TypeRef* Parser::resultType() {
    auto* type = const_cast<TypeRef*>(asClause(false));
    if (type->kind == TypeKind::Any) fail(Message::AnyOutsideDeclare, type->pos);
    if (accept(TokenKind::LeftParen)) {
        expect(TokenKind::RightParen, Message::ParenthesisExpected);
        type->isArray = true;
    }
    return type;
}

// lastIsValue: the last parameter is the value of a Property Let or Set, which is never optional.
Span<Parameter> Parser::parameters(bool ofDeclare, bool lastIsValue) {
    advance();
    if (accept(TokenKind::RightParen)) return {};
    ListBuilder<Parameter> list{scratch_.parameters};
    do {
        const Parameter p = parameter(ofDeclare);
        const bool last = !at(TokenKind::Comma);
        checkParameter(p, list.size() ? &list.back() : nullptr, ofDeclare || (last && lastIsValue));
        list.add(p);
    } while (accept(TokenKind::Comma));
    expect(TokenKind::RightParen, Message::ParenthesisExpected);
    return list.finish(module_.arena);
}

Parameter Parser::parameter(bool ofDeclare) {
    Parameter p{};
    p.optional = accept(Keyword::Optional);
    if (accept(Keyword::ByVal))
        p.passing = Passing::ByVal;
    else if (accept(Keyword::ByRef))
        p.passing = Passing::ByRef;
    p.paramArray = accept(Keyword::ParamArray);
    p.name = expectName(&p.pos, &p.suffix);
    if (accept(TokenKind::LeftParen)) {
        expect(TokenKind::RightParen, Message::ParenthesisExpected);
        p.isArray = true;
    }
    if (at(Keyword::As)) {
        if (p.suffix) failHere(Message::SuffixAndType);
        p.type = asClause(false);
        if (p.type->kind == TypeKind::Any && !ofDeclare) fail(Message::AnyOutsideDeclare, p.type->pos);
    }
    if (!at(TokenKind::Equal)) return p;
    if (!p.optional) failHere(Message::DefaultWithoutOptional);
    advance();
    p.defaultValue = expression();
    return p;
}

void Parser::checkParameter(const Parameter& p, const Parameter* previous, bool anyOrder) {
    if (p.paramArray && !p.isArray) fail(Message::ParamArrayNotArray, p.pos, symbols_.spelling(p.name));
    if (p.paramArray && (p.passing != Passing::Default || p.optional)) fail(Message::ParamArrayQualified, p.pos);
    if (!previous) return;
    if (previous->paramArray) fail(Message::ParameterAfterParamArray, p.pos);
    if (previous->optional && !p.optional && !p.paramArray && !anyOrder) fail(Message::ParameterNotOptional, p.pos);
}

void Parser::endProcedure(ProcedureDecl& p) {
    p.end = tok_.begin;
    const Keyword wanted = endWord(p.signature.kind);
    const Token after = at(Keyword::End) ? lexer_.peek() : Token{};
    if (!after.isWord()) {
        if (unclosedAt_ != tok_.begin) report(Message::EndProcedureMissing, p.pos, spelling(wanted));
        cutShort_ = true;
        return;
    }
    if (!after.is(wanted)) report(Message::EndProcedureOther, tok_.begin, spelling(wanted));
    advance();
    advance();
    expectEndOfStatement();
}

// Skips lines up to the End of the procedure or the beginning of the next one.
void Parser::skipProcedure() {
    lexer_.quiet(true);
    for (;;) {
        while (!tok_.endsLine()) advance();
        skipLineEnds();
        if (at(TokenKind::EndOfFile) || atProcedureHead()) break;
        if (!at(Keyword::End)) continue;
        const Token after = lexer_.peek();
        if (after.is(Keyword::Sub) || after.is(Keyword::Function) || after.is(Keyword::Property)) break;
    }
    lexer_.quiet(false);
    unclosedAt_ = tok_.begin;
}

} // namespace qltoolkit
