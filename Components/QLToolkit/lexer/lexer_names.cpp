#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/source/characters.h"
#include "Components/QLToolkit/source/encoding.h"
#include <cstring>

namespace qltoolkit {

void Lexer::readName(Token& token, const char* p) {
    while (charIs(*p, kNamePart)) ++p;
    token.bracketed = false;
    token.foreign = false;
    token.suffix = 0;
    if (charIs(*p, kForeign) && !isWideBlank(codePage_, p)) return readForeignName(token, p);
    token.end = pos_ = static_cast<Pos>(p - base_);
    token.keyword = keywordOf(base_ + token.begin, token.end - token.begin);
    token.kind = token.keyword == Keyword::None ? TokenKind::Identifier : TokenKind::Keyword;
    if (token.end - token.begin > kMaxNameBytes) report(Message::NameTooLong, token.begin);
    readSuffix(token);
}

void Lexer::readForeignName(Token& token, const char* p) {
    while (charIs(*p, kNamePart | kForeign)) {
        if (charIs(*p, kForeign) && isWideBlank(codePage_, p)) break;
        p += source_.isLeadByte(static_cast<unsigned char>(*p)) && !isLineEnd(p[1]) && p[1] != '\0' ? 2 : 1;
    }
    token.kind = TokenKind::Identifier;
    token.keyword = Keyword::None;
    token.foreign = true;
    token.end = pos_ = static_cast<Pos>(p - base_);
    const auto name = source_.decode(source_.text(token.begin, std::min(token.end, token.begin + kMaxNameBytes + 1)));
    if (hasTypographicMark(name)) {
        report(Message::InvalidCharacter, token.begin, name);
        token.kind = TokenKind::Invalid;
    } else if (token.end - token.begin > kMaxNameBytes) {
        report(Message::NameTooLong, token.begin);
    }
    readSuffix(token);
}

// A type character directly after a name belongs to it. There are two exceptions: "!" before a name accesses a
// collection, and reserved words have no type character (Print#1, Close#1) other than $ (Input$).
void Lexer::readSuffix(Token& token) {
    const char c = base_[pos_];
    switch (c) {
    case '$': break;
    case '!':
        if (charIs(base_[pos_ + 1], kNameStart) || base_[pos_ + 1] == '[') return;
        [[fallthrough]];
    case '%':
    case '&':
    case '@':
        if (isReserved(token.keyword)) return;
        break;
    case '#':
        if (isReserved(token.keyword) || token.keyword == Keyword::Width) return;
        break;
    default: return;
    }
    token.suffix = c;
    if (token.kind == TokenKind::Keyword) token.kind = TokenKind::Identifier;
    token.end = ++pos_;
}

void Lexer::readBracketName(Token& token) {
    const Pos end = contentEnd();
    const auto* close = static_cast<const char*>(std::memchr(base_ + pos_, ']', end - pos_));
    if (!close || close == base_ + pos_ + 1) {
        report(Message::BracketUnclosed, pos_);
        token.kind = TokenKind::Invalid;
        token.end = pos_ = end;
        return;
    }
    token.kind = TokenKind::Identifier;
    token.keyword = Keyword::None;
    token.suffix = 0;
    token.bracketed = true;
    token.foreign = false;
    for (const char* p = base_ + pos_ + 1; p != close; ++p) token.foreign |= !charIs(*p, kNamePart);
    token.end = pos_ = static_cast<Pos>(close - base_) + 1;
    readSuffix(token);
}

} // namespace qltoolkit
