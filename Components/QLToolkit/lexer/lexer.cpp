#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/lexer/date_literal.h"
#include "Components/QLToolkit/source/characters.h"
#include "Components/QLToolkit/source/encoding.h"
#include <cstring>

namespace qltoolkit {

Lexer::Lexer(const SourceText& source, Diagnostics& diagnostics)
    : source_(source),
      diagnostics_(diagnostics),
      base_(source.data()),
      codePage_(source.codePage().number()),
      pos_(source.attributesBegin() <= source.lineCount() ? source.lineStart(source.attributesBegin()) : source.size()),
      line_(source.attributesBegin()) {}

void Lexer::report(Message message, Pos at, std::string_view detail) {
    if (!quiet_) diagnostics_.report(message, at, detail);
}

void Lexer::next(Token& token) {
    const bool atStart = atLineStart_;
    if (atStart) {
        atLineStart_ = false;
        startLine();
    }
    token.spaceBefore = false;
    while (!readToken(token, atStart)) token.spaceBefore = true;
}

// Returns false if only a blank was read: a line continuation, a wide blank or a NUL.
bool Lexer::readToken(Token& token, bool atStart) {
    const char* p = base_ + pos_;
    if (charIs(*p, kBlank)) {
        do { ++p; } while (charIs(*p, kBlank));
        token.spaceBefore = true;
    }
    pos_ = token.begin = static_cast<Pos>(p - base_);
    if (charIs(*p, kNameStart)) {
        if (charIs(*p, kForeign) && isWideBlank(codePage_, p)) {
            pos_ += wideBlankBytes(codePage_);
            return false;
        }
        readName(token, p);
    } else if (charIs(*p, kDigit) || (*p == '.' && charIs(p[1], kDigit))) {
        readNumber(token, p);
    } else if (isLineEnd(*p)) {
        endLine(token, token.begin);
    } else if (*p == '\'') {
        skipComment();
        endLine(token, token.begin);
    } else if (*p == '"') {
        readString(token);
    } else if (*p == '\0' || *p == '_') {
        return readRareBlank(token, p);
    } else if (*p == '[') {
        readBracketName(token);
    } else if (*p == '#' && atStart && startsDirective(p)) {
        token.kind = TokenKind::Directive;
        token.end = ++pos_;
    } else {
        readOperator(token, *p);
    }
    return true;
}

// Handles a NUL, which is a blank unless the file ends, and an underscore, which must continue the line.
bool Lexer::readRareBlank(Token& token, const char* p) {
    if (*p == '_') {
        if (continueLine(p)) return false;
        readInvalid(token);
    } else if (pos_ < source_.size()) {
        ++pos_;
        return false;
    } else {
        token.kind = TokenKind::EndOfFile;
        token.end = pos_ = source_.size();
    }
    return true;
}

bool Lexer::startsDirective(const char* p) const {
    do { ++p; } while (charIs(*p, kBlank));
    return charIs(*p, kNameStart);
}

void Lexer::readInvalid(Token& token) {
    const Pos size = source_.isLeadByte(static_cast<unsigned char>(base_[pos_])) ? 2 : 1;
    report(Message::InvalidCharacter, pos_, source_.decode(source_.text(pos_, pos_ + size)));
    token.kind = TokenKind::Invalid;
    pos_ += size;
    token.end = pos_;
}

void Lexer::readString(Token& token) {
    const Pos end = contentEnd();
    token.kind = TokenKind::String;
    token.doubled = false;
    for (Pos at = pos_ + 1;;) {
        const auto* quote = static_cast<const char*>(at < end ? std::memchr(base_ + at, '"', end - at) : nullptr);
        if (!quote) {
            report(Message::StringUnclosed, pos_);
            token.kind = TokenKind::Invalid;
            pos_ = token.end = end;
            return;
        }
        at = static_cast<Pos>(quote - base_) + 1;
        if (*(quote + 1) != '"') {
            pos_ = token.end = at;
            return;
        }
        token.doubled = true;
        ++at;
    }
}

bool Lexer::readDate(Token& hash) {
    const Pos end = contentEnd();
    const auto* close = static_cast<const char*>(std::memchr(base_ + pos_, '#', end - pos_));
    if (!close) return false;
    const auto stop = static_cast<Pos>(close - base_);
    const auto value = parseDateLiteral(source_.text(pos_, stop));
    if (!value) return false;
    hash.kind = TokenKind::Date;
    hash.real = *value;
    hash.end = pos_ = stop + 1;
    return true;
}

Token Lexer::peek() {
    const auto pos = pos_;
    const auto line = line_;
    const auto continuations = continuations_;
    const bool atStart = atLineStart_, wasQuiet = quiet_;
    quiet_ = true;
    Token token;
    next(token);
    pos_ = pos;
    line_ = line;
    continuations_ = continuations;
    atLineStart_ = atStart;
    quiet_ = wasQuiet;
    return token;
}

bool Lexer::assignsByName(const Token& token) const {
    const char* p = base_ + token.end;
    while (charIs(*p, kBlank)) ++p;
    return p[0] == ':' && p[1] == '=';
}

bool Lexer::colonFollows(const Token& token) const {
    const char* p = base_ + token.end;
    while (charIs(*p, kBlank)) ++p;
    return p[0] == ':' && p[1] != '=';
}

} // namespace qltoolkit
