#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/lexer/date_literal.h"
#include "Components/QLToolkit/lexer/keyword_table.h"
#include "Components/QLToolkit/source/byte_block.h"
#include "Components/QLToolkit/source/characters.h"
#include "Components/QLToolkit/source/encoding.h"
#include <array>
#include <cstring>

namespace qltoolkit {

namespace {

/// What a character begins.
enum class Start : std::uint8_t { Other, Blank, Letter, Single, LineEnd, Digit, Operator, Quote };

// Filled from pairs of characters and what they begin.
constexpr auto kStarts = [] {
    std::array<Start, 256> table{};
    const auto set = [&](std::string_view characters, Start start) {
        for (const char c : characters) table[static_cast<unsigned char>(c)] = start;
    };
    for (unsigned c = 0; c < 128; ++c) {
        if (kCharClasses[c] & kBlank) table[c] = Start::Blank;
        if (kCharClasses[c] & kNameStart) table[c] = Start::Letter;
    }
    set("0123456789", Start::Digit);
    set("\r\n", Start::LineEnd);
    set("\"", Start::Quote);
    set(":&=<>", Start::Operator);
    set(",;!()^*/\\+-", Start::Single);
    return table;
}();

// The tokens of one character that begins no other token.
constexpr auto kSingles = [] {
    std::array<TokenKind, 128> table{};
    table[','] = TokenKind::Comma;
    table[';'] = TokenKind::Semicolon;
    table['!'] = TokenKind::Bang;
    table['('] = TokenKind::LeftParen;
    table[')'] = TokenKind::RightParen;
    table['^'] = TokenKind::Caret;
    table['*'] = TokenKind::Star;
    table['/'] = TokenKind::Slash;
    table['\\'] = TokenKind::Backslash;
    table['+'] = TokenKind::Plus;
    table['-'] = TokenKind::Minus;
    return table;
}();

Start startOf(char c) { return kStarts[static_cast<unsigned char>(c)]; }
TokenKind singleOf(char c) { return kSingles[static_cast<unsigned char>(c)]; }

} // namespace

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

// All cases are tail calls, so that the frequent ones save no registers.
void Lexer::next(Token& token) {
    if (atLineStart_) return readFirst(token);
    const char* p = base_ + pos_;
    auto start = startOf(*p);
    token.spaceBefore = start == Start::Blank;
    while (start == Start::Blank) start = startOf(*++p);
    token.begin = static_cast<Pos>(p - base_);
    if (start == Start::Letter) return readName(token, p); // half of all tokens
    switch (start) {
    case Start::Single: return end(token, singleOf(*p), p + 1);
    case Start::LineEnd: return endLine(token);
    case Start::Digit: return readNumber(token, p);
    case Start::Operator: return readOperator(token, p);
    case Start::Quote: return readString(token);
    default: return readOther(token, p);
    }
}

inline void Lexer::readName(Token& token, const char* p) {
    const auto length = ByteBlock(p).nameBytes();
    if (length > kShortName) return readLongName(token, p);
    const auto key = (wordAt(p) | kFoldMask) & kFirstBytes[length];
    endName(token, p + length, key, keywordOfKey(key));
}

// Most lines begin with code, which is found at once; readFirst looks for the others'.
void Lexer::endLine(Token& token) {
    token.kind = TokenKind::EndOfLine;
    token.end = token.begin;
    nextLine();
    continuations_ = 0;
    const char* p = skipBlanks(base_ + pos_);
    atLineStart_ = startOf(*p) != Start::Letter;
    if (!atLineStart_) pos_ = static_cast<Pos>(p - base_);
}

void Lexer::readOther(Token& token, const char* p) {
    pos_ = token.begin;
    if (skipRareBlanks(p)) {
        if (token.begin == firstOfLine_) firstOfLine_ = pos_;
        next(token);
        token.spaceBefore = true;
        return;
    }
    switch (*p) {
    case '\'': skipComment(); return endLine(token);
    case '.': return charIs(p[1], kDigit) ? readNumber(token, p) : end(token, TokenKind::Dot, p + 1);
    case '[': return readBracketName(token);
    case '#': return readHash(token, p);
    case '\0': return end(token, TokenKind::EndOfFile, p);
    default: return charIs(*p, kForeign) ? readForeignName(token, p) : readInvalid(token);
    }
}

// Skips line continuations, wide blanks, and NULs before the end of the file. Returns false if there are none.
bool Lexer::skipRareBlanks(const char* p) {
    const Pos begin = pos_;
    while (skipRareBlank(p)) p = base_ + pos_;
    return pos_ != begin;
}

bool Lexer::skipRareBlank(const char* p) {
    if (*p == '_') return continueLine(p);
    const bool wide = charIs(*p, kForeign) && isWideBlank(codePage_, p);
    if (!wide && (*p != '\0' || pos_ >= source_.size()) && !charIs(*p, kBlank)) return false;
    pos_ += wide ? wideBlankBytes(codePage_) : 1;
    return true;
}

void Lexer::readHash(Token& token, const char* p) {
    const bool directive = token.begin == firstOfLine_ && startsDirective(p);
    end(token, directive ? TokenKind::Directive : TokenKind::Hash, p + 1);
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
    pos_ = token.begin;
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

} // namespace qltoolkit
