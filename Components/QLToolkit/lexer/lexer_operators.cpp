// Operators and punctuation.
#include "Components/QLToolkit/lexer/lexer.h"

namespace qltoolkit {

void Lexer::readOperator(Token& token, char c) {
    const char after = base_[pos_ + 1];
    token.end = ++pos_;
    switch (c) {
    case ':':
        token.kind = after == '=' ? TokenKind::ColonEqual : TokenKind::Colon;
        if (after == '=') token.end = ++pos_;
        return;
    case ',': token.kind = TokenKind::Comma; return;
    case ';': token.kind = TokenKind::Semicolon; return;
    case '.': token.kind = TokenKind::Dot; return;
    case '!': token.kind = TokenKind::Bang; return;
    case '(': token.kind = TokenKind::LeftParen; return;
    case ')': token.kind = TokenKind::RightParen; return;
    case '#': token.kind = TokenKind::Hash; return;
    case '^': token.kind = TokenKind::Caret; return;
    case '*': token.kind = TokenKind::Star; return;
    case '/': token.kind = TokenKind::Slash; return;
    case '\\': token.kind = TokenKind::Backslash; return;
    case '+': token.kind = TokenKind::Plus; return;
    case '-': token.kind = TokenKind::Minus; return;
    case '&': return readRadix(token, base_ + pos_, (after | 0x20) == 'h' ? 4 : 3);
    case '=': {
        token.kind = after == '<' ? TokenKind::LessEqual : after == '>' ? TokenKind::GreaterEqual : TokenKind::Equal;
        if (after == '<' || after == '>') token.end = ++pos_;
        return;
    }
    case '<': return readLess(token);
    case '>': return readGreater(token);
    default: --pos_; return readInvalid(token);
    }
}

void Lexer::readLess(Token& token) {
    const char after = base_[pos_];
    token.kind = after == '=' ? TokenKind::LessEqual : after == '>' ? TokenKind::NotEqual : TokenKind::Less;
    if (token.kind != TokenKind::Less) token.end = ++pos_;
}

void Lexer::readGreater(Token& token) {
    const char after = base_[pos_];
    token.kind = after == '=' ? TokenKind::GreaterEqual : after == '<' ? TokenKind::NotEqual : TokenKind::Greater;
    if (token.kind != TokenKind::Greater) token.end = ++pos_;
}

} // namespace qltoolkit
