// Names, members and what follows them in an expression.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

// The node is made before its members are read, so that fewer values have to be kept during calls.
const Expr* Parser::name() {
    auto* e = make<NameExpr>();
    static_cast<Expr&>(*e) = {ExprKind::Name, static_cast<std::uint8_t>(tok_.suffix), 0, tok_.begin};
    e->name = symbolOf(tok_);
    advance();
    return e;
}

const Expr* Parser::withMember() { return member(nullptr); }

// Called at the . or ! before the member's name, which may be any word.
const Expr* Parser::member(const Expr* base) {
    const ExprKind kind = at(TokenKind::Dot) ? ExprKind::Member : ExprKind::Bang;
    advance();
    if (!tok_.isWord()) failHere(Message::MemberNameExpected);
    const auto suffix = static_cast<std::uint8_t>(tok_.suffix);
    const auto* e = make<MemberExpr>(Expr{kind, suffix, 0, tok_.begin}, symbolOf(tok_), base);
    advance();
    return e;
}

// Parses .member, !member and (arguments) after an operand. At the beginning of a statement (callee), a blank before
// . or ! begins the first argument instead: `Show .Caption`.
const Expr* Parser::postfix(const Expr* base, bool callee) {
    for (;;) {
        switch (tok_.kind) {
        case TokenKind::Dot:
        case TokenKind::Bang:
            if (callee && tok_.spaceBefore && base->kind != ExprKind::Index) return base;
            base = member(base);
            break;
        case TokenKind::LeftParen: {
            if (callee && lastName(base) == known_.print) return base; // Debug.Print (a); (b)
            base = make<IndexExpr>(exprHead(ExprKind::Index, base->pos), base, argumentsInParentheses());
            break;
        }
        default: return base;
        }
    }
}

/// Parses a variable, property or element to which a value can be assigned.
const Expr* Parser::reference() {
    if (at(TokenKind::Dot) || at(TokenKind::Bang)) return postfix(withMember(), false);
    if (at(Keyword::Me)) return keywordOperand();
    if (at(TokenKind::LeftParen)) return parenthesized();
    if (!atName() && !(at(TokenKind::Keyword) && isTypeWord(tok_.keyword))) failHere(Message::NameExpected);
    return postfix(name(), false);
}

} // namespace qltoolkit
