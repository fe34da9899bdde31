#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/lexer/name_characters.h"
#include "Components/QLToolkit/source/byte_block.h"
#include "Components/QLToolkit/source/characters.h"
#include "Components/QLToolkit/source/encoding.h"

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
    const bool isDoubleByte = basic::CodePage::isDoubleByte(codePage_);
    bool isWrong = false;
    while (charIs(*p, kNamePart | kForeign)) {
        if (!charIs(*p, kForeign)) {
            ++p;
            continue;
        }
        if (isWideBlank(codePage_, p)) break;
        const bool isFirst = p == base_ + token.begin;
        unsigned code = static_cast<unsigned char>(*p++);
        if (source_.isLeadByte(static_cast<unsigned char>(p[-1])) && !isLineEnd(*p) && *p != '\0')
            code = code << 8 | static_cast<unsigned char>(*p++);
        isWrong |= isDoubleByte && !isNameCharacter(codePage_, code, isFirst);
    }
    token.kind = TokenKind::Identifier;
    token.keyword = Keyword::None;
    token.suffix = 0;
    token.nameKey = 0;
    token.end = pos_ = static_cast<Pos>(p - base_);
    const auto name = source_.decode(source_.text(token.begin, std::min(token.end, token.begin + kMaxNameBytes + 1)));
    if (isWrong || (!isDoubleByte && hasTypographicMark(name))) {
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
    Pos close = pos_;
    // The second byte of a character may be that of a bracket.
    while (close < end && base_[close] != ']')
        close += source_.isLeadByte(static_cast<unsigned char>(base_[close])) ? 2 : 1;
    if (close >= end || close == pos_ + 1) {
        report(Message::BracketUnclosed, pos_);
        token.kind = TokenKind::Invalid;
        token.end = pos_ = end;
        return;
    }
    token.kind = TokenKind::Identifier;
    token.keyword = Keyword::None;
    token.suffix = 0;
    token.nameKey = 0;
    token.end = pos_ = close + 1;
    readSuffix(token);
}

} // namespace qltoolkit
