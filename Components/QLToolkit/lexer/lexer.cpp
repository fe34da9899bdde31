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

// Where the text of the current physical line ends, its line end not counted.
Pos Lexer::contentEnd() const {
    Pos end = line_ < source_.lineCount() ? source_.lineStart(line_ + 1) : source_.size();
    if (end > pos_ && base_[end - 1] == '\n') --end;
    if (end > pos_ && base_[end - 1] == '\r') --end;
    return end;
}

// Steps over lines that are empty or hold only a comment, so that the parser never sees them.
void Lexer::startLine() {
    continuations_ = 0;
    const auto lines = source_.lineCount();
    while (line_ <= lines) {
        const char* p = base_ + pos_;
        while (charIs(*p, kBlank)) ++p;
        pos_ = static_cast<Pos>(p - base_);
        if (*p == '\'')
            skipComment();
        else if (!isLineEnd(*p))
            return;
        ++line_;
        pos_ = line_ <= lines ? source_.lineStart(line_) : source_.size();
    }
}

void Lexer::endLine(Token& token, Pos at) {
    token.kind = TokenKind::EndOfLine;
    token.begin = token.end = at;
    ++line_;
    pos_ = line_ <= source_.lineCount() ? source_.lineStart(line_) : source_.size();
    atLineStart_ = true;
}

void Lexer::skipComment() {
    for (;;) {
        const Pos end = contentEnd();
        Pos last = end;
        while (last > pos_ && charIs(base_[last - 1], kBlank)) --last;
        const bool goesOn = last >= pos_ + 2 && base_[last - 1] == '_' && charIs(base_[last - 2], kBlank);
        pos_ = end;
        if (!goesOn || line_ >= source_.lineCount()) return;
        ++line_;
        pos_ = source_.lineStart(line_);
    }
}

// " _" and nothing but blanks up to the end of the line.
bool Lexer::continueLine(const char* underscore) {
    const char* p = underscore + 1;
    while (charIs(*p, kBlank)) ++p;
    if (!isLineEnd(*p) || line_ >= source_.lineCount()) return false;
    if (++continuations_ == kMaxContinuations + 1)
        report(Message::TooManyContinuations, static_cast<Pos>(underscore - base_));
    ++line_;
    pos_ = source_.lineStart(line_);
    return true;
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

// False when only a blank of some kind was read: a joined line, a wide blank, a NUL.
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

// A NUL, which counts as a blank unless it is the end, or an underscore that joins lines, or should.
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

bool Lexer::skipToDirective() {
    for (; line_ <= source_.lineCount(); ++line_) {
        const char* p = base_ + source_.lineStart(line_);
        while (charIs(*p, kBlank)) ++p;
        if (*p != '#' || !startsDirective(p)) continue;
        pos_ = static_cast<Pos>(p - base_);
        atLineStart_ = true;
        return true;
    }
    pos_ = source_.size();
    return false;
}

} // namespace qltoolkit
