// Operators and punctuation.
#include "Components/QLToolkit/lexer/lexer.h"

namespace qltoolkit {

void Lexer::readOperator(Token& token, const char* p) {
    const char after = p[1];
    token.end = pos_ = token.begin + 1;
    switch (*p) {
    case ':':
        token.kind = after == '=' ? TokenKind::ColonEqual : TokenKind::Colon;
        if (after == '=') token.end = ++pos_;
        return;
    case '&': return readRadix(token, p + 1, (after | 0x20) == 'h' ? 4 : 3);
    case '=': {
        token.kind = after == '<' ? TokenKind::LessEqual : after == '>' ? TokenKind::GreaterEqual : TokenKind::Equal;
        if (after == '<' || after == '>') token.end = ++pos_;
        return;
    }
    case '<': return readLess(token);
    default: return readGreater(token);
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
