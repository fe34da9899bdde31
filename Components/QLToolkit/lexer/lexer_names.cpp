#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/source/byte_block.h"
#include "Components/QLToolkit/source/characters.h"
#include "Components/QLToolkit/source/encoding.h"
#include <cstring>

namespace qltoolkit {

void Lexer::readLongName(Token& token, const char* p) {
    std::uint32_t length = 0;
    for (auto more = kBlockBytes; more == kBlockBytes; length += more) more = ByteBlock(p + length).nameBytes();
    const auto key = longNameKey(p, length);
    endName(token, p + length, key, keywordOf(p, length, key));
    if (length > kMaxNameBytes && token.nameKey != 0) report(Message::NameTooLong, token.begin);
}

// What few names have: letters other than ASCII, or a type character.
void Lexer::finishName(Token& token, const char* end) {
    if (charIs(*end, kForeign) && !isWideBlank(codePage_, end)) return readForeignName(token, end);
    readSuffix(token);
}

void Lexer::readForeignName(Token& token, const char* p) {
    while (charIs(*p, kNamePart | kForeign)) {
        if (charIs(*p, kForeign) && isWideBlank(codePage_, p)) break;
        p += source_.isLeadByte(static_cast<unsigned char>(*p)) && !isLineEnd(p[1]) && p[1] != '\0' ? 2 : 1;
    }
    token.kind = TokenKind::Identifier;
    token.keyword = Keyword::None;
    token.suffix = 0;
    token.nameKey = 0;
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
    token.nameKey = 0;
    token.end = pos_ = static_cast<Pos>(close - base_) + 1;
    readSuffix(token);
}

} // namespace qltoolkit
