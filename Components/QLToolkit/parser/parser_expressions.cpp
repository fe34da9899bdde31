// Expressions, by operator precedence.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

namespace {

struct OperatorInfo {
    std::uint8_t power = 0; // 0 if not an operator
    Operator op = Operator::Power;
};

constexpr int kNotPower = 6;
constexpr int kNegatePower = 13;

constexpr auto kTokenOperators = [] {
    std::array<OperatorInfo, static_cast<std::size_t>(TokenKind::Invalid) + 1> table{};
    const auto set = [&](TokenKind k, std::uint8_t power, Operator op) {
        table[static_cast<std::size_t>(k)] = {power, op};
    };
    set(TokenKind::Caret, 14, Operator::Power);
    set(TokenKind::Star, 12, Operator::Multiply);
    set(TokenKind::Slash, 12, Operator::Divide);
    set(TokenKind::Backslash, 11, Operator::IntDivide);
    set(TokenKind::Plus, 9, Operator::Add);
    set(TokenKind::Minus, 9, Operator::Subtract);
    set(TokenKind::Ampersand, 8, Operator::Concat);
    set(TokenKind::Equal, 7, Operator::Equal);
    set(TokenKind::NotEqual, 7, Operator::NotEqual);
    set(TokenKind::Less, 7, Operator::Less);
    set(TokenKind::LessEqual, 7, Operator::LessEqual);
    set(TokenKind::Greater, 7, Operator::Greater);
    set(TokenKind::GreaterEqual, 7, Operator::GreaterEqual);
    return table;
}();

OperatorInfo keywordOperator(Keyword k) {
    switch (k) {
    case Keyword::Mod: return {10, Operator::Mod};
    case Keyword::Like: return {7, Operator::Like};
    case Keyword::Is: return {7, Operator::Is};
    case Keyword::And: return {5, Operator::And};
    case Keyword::Or: return {4, Operator::Or};
    case Keyword::Xor: return {3, Operator::Xor};
    case Keyword::Eqv: return {2, Operator::Eqv};
    case Keyword::Imp: return {1, Operator::Imp};
    default: return {};
    }
}

OperatorInfo operatorOf(const Token& t) {
    return t.is(TokenKind::Keyword) ? keywordOperator(t.keyword) : kTokenOperators[static_cast<std::size_t>(t.kind)];
}

} // namespace

const Expr* Parser::binary(int minPower) {
    const Nesting nesting{depth_};
    if (depth_ > kMaxDepth) fail(Message::ExpressionTooDeep, tok_.begin);
    return binaryRest(operand(), minPower);
}

// The left side grows in this loop, so that long chains do not recurse.
const Expr* Parser::binaryRest(const Expr* left, int minPower) {
    for (;;) {
        const auto [power, op] = operatorOf(tok_);
        if (power == 0 || power < minPower) return left;
        const Pos pos = tok_.begin;
        advance();
        const Expr* right = binary(power + 1);
        left = make<BinaryExpr>(exprHead(ExprKind::Binary, op, pos), left, right);
    }
}

const Expr* Parser::operand() {
    switch (tok_.kind) {
    case TokenKind::Identifier: return postfix(name(), false);
    case TokenKind::Integer:
    case TokenKind::Long:
    case TokenKind::Currency:
    case TokenKind::Single:
    case TokenKind::Double:
    case TokenKind::Date: return literal();
    case TokenKind::String: return stringLiteral();
    case TokenKind::Hash: return dateLiteral();
    case TokenKind::Keyword: return keywordOperand();
    case TokenKind::LeftParen: return parenthesized();
    case TokenKind::Dot:
    case TokenKind::Bang: return postfix(withMember(), false);
    case TokenKind::Minus: return prefix(Operator::Negate, kNegatePower);
    case TokenKind::Plus: return prefix(Operator::Plus, kNegatePower);
    default: failExpression();
    }
}

void Parser::failExpression() {
    if (tok_.endsStatement()) fail(Message::ExpressionExpected, here(), "end of the statement");
    failHere(Message::ExpressionExpected);
}

const Expr* Parser::keywordOperand() {
    const Pos pos = tok_.begin;
    const auto constant = [&](ExprKind kind, std::uint8_t detail = 0) {
        advance();
        return make<Expr>(Expr{kind, detail, pos});
    };
    switch (tok_.keyword) {
    case Keyword::True: return constant(ExprKind::Boolean, 1);
    case Keyword::False: return constant(ExprKind::Boolean);
    case Keyword::Nothing: return constant(ExprKind::Nothing);
    case Keyword::Empty: return constant(ExprKind::Empty);
    case Keyword::Null: return constant(ExprKind::Null);
    case Keyword::Me: return postfix(constant(ExprKind::Me), false);
    case Keyword::Not: return prefix(Operator::Not, kNotPower);
    case Keyword::New: {
        advance();
        return make<NewExpr>(exprHead(ExprKind::New, pos), className());
    }
    case Keyword::TypeOf: return typeOf();
    case Keyword::AddressOf: {
        advance();
        return make<UnaryExpr>(exprHead(ExprKind::AddressOf, pos), reference());
    }
    case Keyword::Input:
    case Keyword::Seek: return postfix(name(), false); // functions that share their name with a statement
    default: break;
    }
    if (isReserved(tok_.keyword)) failExpression();
    return postfix(name(), false);
}

const Expr* Parser::prefix(Operator op, int power) {
    const Pos pos = tok_.begin;
    advance();
    return make<UnaryExpr>(exprHead(ExprKind::Unary, op, pos), binary(power));
}

const Expr* Parser::literal() {
    const Token t = tok_;
    advance();
    switch (t.kind) {
    case TokenKind::Integer: return make<IntegerExpr>(exprHead(ExprKind::Integer, t.begin), t.integer);
    case TokenKind::Long: return make<IntegerExpr>(exprHead(ExprKind::Long, t.begin), t.integer);
    case TokenKind::Currency: return make<IntegerExpr>(exprHead(ExprKind::Currency, t.begin), t.integer);
    case TokenKind::Single: return make<FloatExpr>(exprHead(ExprKind::Single, t.begin), t.real);
    case TokenKind::Date: return make<FloatExpr>(exprHead(ExprKind::Date, t.begin), t.real);
    default: return make<FloatExpr>(exprHead(ExprKind::Double, t.begin), t.real);
    }
}

const Expr* Parser::stringLiteral() {
    const Token t = tok_;
    advance();
    return make<StringExpr>(Expr{ExprKind::String, t.doubled, t.begin}, t.end - t.begin - 2);
}

const Expr* Parser::dateLiteral() {
    if (!lexer_.readDate(tok_)) fail(Message::DateInvalid, tok_.begin);
    return literal();
}

const Expr* Parser::parenthesized() {
    const Pos pos = tok_.begin;
    advance();
    const Expr* inner = expression();
    expect(TokenKind::RightParen, Message::ParenthesisExpected);
    return postfix(make<UnaryExpr>(exprHead(ExprKind::Paren, pos), inner), false);
}

const Expr* Parser::typeOf() {
    const Pos pos = tok_.begin;
    advance();
    const Expr* object = reference();
    expect(Keyword::Is, Message::IsExpected);
    return make<TypeOfExpr>(exprHead(ExprKind::TypeOf, pos), object, className());
}

} // namespace qltoolkit
