// Variables, constants and their types.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

namespace {

TypeKind typeOfWord(Keyword k) {
    switch (k) {
    case Keyword::Any: return TypeKind::Any;
    case Keyword::Boolean: return TypeKind::Boolean;
    case Keyword::Byte: return TypeKind::Byte;
    case Keyword::Currency: return TypeKind::Currency;
    case Keyword::Date: return TypeKind::Date;
    case Keyword::Double: return TypeKind::Double;
    case Keyword::Integer: return TypeKind::Integer;
    case Keyword::Long: return TypeKind::Long;
    case Keyword::Single: return TypeKind::Single;
    case Keyword::String: return TypeKind::String;
    default: return TypeKind::Variant;
    }
}

TypeRef makeType(TypeKind kind, bool isNew, Pos pos) {
    TypeRef type{};
    type.kind = kind;
    type.isNew = isNew;
    type.pos = pos;
    return type;
}

} // namespace

Span<Variable> Parser::variableList() {
    ListBuilder<Variable> list{scratch_.variables};
    do { list.add(variable()); } while (accept(TokenKind::Comma));
    return list.finish(module_.arena);
}

Variable Parser::variable() {
    Variable v{};
    v.withEvents = accept(Keyword::WithEvents);
    v.name = expectName(&v.pos, &v.suffix);
    variableType(v);
    if (v.withEvents && (v.isArray || (v.type && v.type->isNew))) fail(Message::WithEventsArray, v.pos);
    return v;
}

void Parser::variableType(Variable& v) {
    if (at(TokenKind::LeftParen)) {
        v.isArray = true;
        v.bounds = bounds();
    }
    if (!at(Keyword::As)) return;
    if (v.suffix) failHere(Message::SuffixAndType);
    v.type = asClause(true);
    if (v.type->kind == TypeKind::Any) fail(Message::AnyOutsideDeclare, v.type->pos);
}

Span<Bound> Parser::bounds() {
    advance();
    if (accept(TokenKind::RightParen)) return {};
    ListBuilder<Bound> list{scratch_.bounds};
    do {
        const Expr* first = expression();
        if (accept(Keyword::To))
            list.add({first, expression()});
        else
            list.add({nullptr, first});
    } while (accept(TokenKind::Comma));
    expect(TokenKind::RightParen, Message::ParenthesisExpected);
    return list.finish(module_.arena);
}

Span<Constant> Parser::constantList() {
    ListBuilder<Constant> list{scratch_.constants};
    do {
        Constant c{};
        c.name = expectName(&c.pos, &c.suffix);
        if (at(Keyword::As)) c.type = asClause(false);
        expect(TokenKind::Equal, Message::ConstantValueExpected);
        c.value = expression();
        list.add(c);
    } while (accept(TokenKind::Comma));
    return list.finish(module_.arena);
}

// Called at As.
const TypeRef* Parser::asClause(bool allowNew) {
    advance();
    const bool isNew = at(Keyword::New);
    if (isNew && !allowNew) failHere(Message::NewNotAllowed);
    if (isNew) advance();
    return typeName(isNew);
}

const TypeRef* Parser::typeName(bool isNew) {
    const Pos pos = tok_.begin;
    if (!at(TokenKind::Keyword) || !isTypeWord(tok_.keyword)) {
        if (!at(Keyword::Object) || lexer_.peek().is(TokenKind::Dot)) return className(isNew);
        advance();
        return make<TypeRef>(makeType(TypeKind::Object, isNew, pos));
    }
    if (isNew) failHere(Message::NewNotAllowed);
    auto* type = make<TypeRef>(makeType(typeOfWord(tok_.keyword), false, pos));
    advance();
    if (!at(TokenKind::Star)) return type;
    if (type->kind != TypeKind::String) failHere(Message::FixedLengthNotString);
    advance();
    type->kind = TypeKind::FixedString;
    type->length = operand();
    return type;
}

// Library.Class or Class.
const TypeRef* Parser::className(bool isNew) {
    auto* type = make<TypeRef>(makeType(TypeKind::Named, isNew, tok_.begin));
    if (!tok_.isWord() || (at(TokenKind::Keyword) && isReserved(tok_.keyword))) failHere(Message::TypeExpected);
    type->name = symbolOf(tok_);
    type->namePos = tok_.begin;
    advance();
    while (at(TokenKind::Dot)) {
        advance();
        if (!tok_.isWord()) failHere(Message::TypeExpected);
        type->library = type->name;
        type->name = symbolOf(tok_);
        type->namePos = tok_.begin;
        advance();
    }
    return type;
}

} // namespace qltoolkit
