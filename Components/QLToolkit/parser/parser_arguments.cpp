// Arguments of calls, and coordinates.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

namespace {
constexpr Pos kMostOfPos = 0x7FFFFFFF;
static_assert(kMaxSourceBytes <= kMostOfPos);
} // namespace

void Parser::restOfArguments(ListBuilder<Argument>& arguments) {
    for (;;) {
        if (at(TokenKind::Comma) || endsStatement())
            arguments.add({});
        else
            arguments.add(argument());
        if (!accept(TokenKind::Comma)) return;
    }
}

Span<Argument> Parser::argumentsInParentheses() {
    advance();
    if (accept(TokenKind::RightParen)) return {};
    ListBuilder<Argument> arguments{scratch_.arguments};
    for (;;) {
        if (at(TokenKind::Comma) || at(TokenKind::RightParen))
            arguments.add({});
        else
            arguments.add(argument());
        if (!accept(TokenKind::Comma)) break;
    }
    expect(TokenKind::RightParen, Message::ParenthesisExpected);
    checkArguments(arguments);
    return arguments.finish(module_.arena);
}

Argument Parser::argument() {
    Argument a;
    if (tok_.isWord() && lexer_.assignsByName(tok_)) {
        a.name = symbolOf(tok_);
        a.namePos = tok_.begin & kMostOfPos;
        advance();
        advance();
    }
    a.byVal = accept(Keyword::ByVal);
    if (at(TokenKind::Hash) && !lexer_.readDate(tok_)) advance(); // Input(5, #1)
    a.value = expression();
    if (inReDim_ && at(Keyword::To)) {
        const Pos pos = tok_.begin;
        advance();
        const Expr* upper = expression();
        a.value = make<BinaryExpr>(Expr{ExprKind::Range, 0, 0, pos}, a.value, upper);
    }
    return a;
}

// Only named arguments may follow a named argument.
void Parser::checkArguments(const ListBuilder<Argument>& arguments) {
    bool named = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (named && arguments[i].name == Symbol::None)
            fail(Message::PositionalAfterNamed, arguments[i].value ? arguments[i].value->pos : here());
        named |= arguments[i].name != Symbol::None;
    }
}

// [Step] (x, y) [- [Step] (x, y)], or only the part from the minus. `first`: (x, y) if already parsed as arguments.
const Expr* Parser::coordinates(const IndexExpr* first) {
    auto* c = make<CoordinatesExpr>(Expr{ExprKind::Coordinates, 0, 0, first ? first->pos : tok_.begin}, false, false,
                                    nullptr, nullptr, nullptr, nullptr);
    if (first) {
        c->x1 = first->arguments[0].value;
        c->y1 = first->arguments[1].value;
        if (!c->x1 || !c->y1) fail(Message::CoordinatesExpected, first->pos);
    } else if (!at(TokenKind::Minus)) {
        c->step1 = accept(Keyword::Step);
        point(c->x1, c->y1);
    }
    if (!accept(TokenKind::Minus)) return c;
    c->step2 = accept(Keyword::Step);
    point(c->x2, c->y2);
    return c;
}

void Parser::point(const Expr*& x, const Expr*& y) {
    expect(TokenKind::LeftParen, Message::CoordinatesExpected);
    x = expression();
    expect(TokenKind::Comma, Message::CommaExpected);
    y = expression();
    expect(TokenKind::RightParen, Message::ParenthesisExpected);
}

} // namespace qltoolkit
