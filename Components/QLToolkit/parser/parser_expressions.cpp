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

constexpr auto kKeywordOperators = [] {
    std::array<OperatorInfo, static_cast<std::size_t>(kLastKeyword) + 1> table{};
    const auto set = [&](Keyword k, std::uint8_t power, Operator op) {
        table[static_cast<std::size_t>(k)] = {power, op};
    };
    set(Keyword::Mod, 10, Operator::Mod);
    set(Keyword::Like, 7, Operator::Like);
    set(Keyword::Is, 7, Operator::Is);
    set(Keyword::And, 5, Operator::And);
    set(Keyword::Or, 4, Operator::Or);
    set(Keyword::Xor, 3, Operator::Xor);
    set(Keyword::Eqv, 2, Operator::Eqv);
    set(Keyword::Imp, 1, Operator::Imp);
    return table;
}();

OperatorInfo operatorOf(const Token& t) {
    return t.is(TokenKind::Keyword) ? kKeywordOperators[static_cast<std::size_t>(t.keyword)]
                                    : kTokenOperators[static_cast<std::size_t>(t.kind)];
}

} // namespace

const Expr* Parser::binary(int minPower) {
    const Nesting nesting{depth_};
    if (depth_ > kMaxDepth) fail(Message::ExpressionTooDeep, tok_.begin);
    const Expr* left = at(TokenKind::Identifier) ? nameAndRest() : operand();
    return operatorOf(tok_).power < minPower ? left : binaryRest(left, minPower);
}

// The left side grows in this loop, so that long chains do not recurse.
const Expr* Parser::binaryRest(const Expr* left, int minPower) {
    for (;;) {
        const auto [power, op] = operatorOf(tok_);
        if (power < minPower) return left;
        const Pos pos = tok_.begin;
        advance();
        const Expr* right = binary(power + 1);
        left = make<BinaryExpr>(exprHead(ExprKind::Binary, op, pos), left, right);
    }
}

const Expr* Parser::operand() {
    switch (tok_.kind) {
    case TokenKind::Identifier: return nameAndRest();
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
    case TokenKind::Ampersand: return octalLiteral();
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
        return make<Expr>(Expr{kind, detail, 0, pos});
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

// The kinds of literals are the same in tokens and expressions.
const Expr* Parser::literal() {
    constexpr auto kFirst = static_cast<int>(TokenKind::Integer);
    static_assert(static_cast<int>(TokenKind::Date) - kFirst == static_cast<int>(ExprKind::Date));
    Expr* const e = tok_.kind <= TokenKind::Currency ? static_cast<Expr*>(integer()) : real();
    *e = exprHead(static_cast<ExprKind>(static_cast<int>(tok_.kind) - kFirst), tok_.begin);
    advance();
    return e;
}

IntegerExpr* Parser::integer() {
    auto* e = make<IntegerExpr>();
    e->value = tok_.integer;
    return e;
}

FloatExpr* Parser::real() {
    auto* e = make<FloatExpr>();
    e->value = tok_.real;
    return e;
}

const Expr* Parser::stringLiteral() {
    const auto* e = make<StringExpr>(Expr{ExprKind::String, tok_.doubled, 0, tok_.begin}, tok_.end - tok_.begin - 2);
    advance();
    return e;
}

const Expr* Parser::dateLiteral() {
    if (!lexer_.readDate(tok_)) fail(Message::DateInvalid, tok_.begin);
    return literal();
}

// &17 is octal as &O17 is, but between two operands the & joins them: "a" &1.
const Expr* Parser::octalLiteral() {
    if (!lexer_.readOctal(tok_)) failExpression();
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
