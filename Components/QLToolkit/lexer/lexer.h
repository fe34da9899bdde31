#pragma once
// Splits source text into tokens, in one pass and on demand. Lines without code produce no tokens.
#include "Components/QLToolkit/lexer/token.h"
#include "Components/QLToolkit/source/characters.h"
#include "Components/QLToolkit/source/diagnostic.h"

namespace qltoolkit {

class Lexer {
public:
    /// Starts at the Attribute lines of the header.
    Lexer(const SourceText&, Diagnostics&);

    void next(Token&);

    /// Returns the token after the current one without advancing. Must not be called at the end of a line.
    [[nodiscard]] Token peek();
    /// Returns true if `token` is followed directly by ":=".
    [[nodiscard]] bool assignsByName(const Token& token) const;

    /// Returns true if `token` is followed directly by a colon, but not by ":=".
    [[nodiscard]] bool colonFollows(const Token& token) const {
        const char* p = base_ + token.end;
        while (charIs(*p, kBlank)) ++p;
        return p[0] == ':' && p[1] != '=';
    }

    /// Reads the date from `hash` up to the next # and changes `hash` to a token of kind Date. Returns false and leaves
    /// the token unchanged if there is no date.
    bool readDate(Token& hash);
    /// Skips the rest of a comment after its Rem.
    void skipComment();
    /// Reads the octal digits after `ampersand`, which begins an operand, and changes it to a number. Returns false and
    /// leaves the token unchanged if there are none.
    bool readOctal(Token& ampersand);
    /// Called at the beginning of a line: skips to the next line that begins with # and a letter. Returns false at the
    /// end of the file.
    bool skipToDirective();

    /// Suppresses messages, for the rest of a line with an error.
    void quiet(bool on) { quiet_ = on; }
    /// Physical line of the next character.
    [[nodiscard]] std::uint32_t line() const { return line_; }

    /// The maximum number of line continuations in one statement.
    static constexpr int kMaxContinuations = 24;
    static constexpr Pos kMaxNameBytes = 255;

private:
    // The line after the last one begins at the end of the file.
    void nextLine() { pos_ = source_.lineStart(++line_); }
    void readFirst(Token&);
    void readAfterEmptyLines(Token&, const char* p);
    void readOther(Token&, const char* p);
    bool skipRareBlanks(const char* p);
    bool skipRareBlank(const char* p);
    void end(Token&, TokenKind, const char* end);
    void endLine(Token&);
    void readName(Token&, const char* p);
    void readLongName(Token&, const char* p);
    void endName(Token&, const char* end, std::uint64_t key, Keyword);
    void finishName(Token&, const char* end);
    void readHash(Token&, const char* p);
    void readForeignName(Token&, const char* p);
    void readSuffix(Token&);
    void readBracketName(Token&);
    void readNumber(Token&, const char* p);
    void readLongNumber(Token&, const char* p);
    void readRadix(Token&, const char* p, int bits);
    void readDigits(Token&, const char* p, int bits);
    void readString(Token&);
    void readOperator(Token&, const char* p);
    void readLess(Token&);
    void readGreater(Token&);
    void readInvalid(Token&);
    bool continueLine(const char* underscore);
    void finishInteger(Token&, std::uint64_t value);
    void finishReal(Token&, const char* begin, const char* end);
    [[nodiscard]] bool startsDirective(const char* p) const;
    [[nodiscard]] Pos contentEnd() const;
    void report(Message, Pos at, std::string_view detail = {});

    const SourceText& source_;
    Diagnostics& diagnostics_;
    const char* const base_;
    const int codePage_;
    Pos pos_;
    Pos firstOfLine_ = 0;
    std::uint32_t line_;
    int continuations_ = 0;
    bool atLineStart_ = true;
    bool quiet_ = false;
};

inline void Lexer::end(Token& token, TokenKind kind, const char* end) {
    token.kind = kind;
    token.end = pos_ = static_cast<Pos>(end - base_);
}

inline void Lexer::endName(Token& token, const char* end, std::uint64_t key, Keyword keyword) {
    token.keyword = keyword;
    token.suffix = 0;
    token.nameKey = key;
    static_assert(static_cast<int>(TokenKind::Identifier) + 1 == static_cast<int>(TokenKind::Keyword));
    const int isKeyword = keyword != Keyword::None;
    this->end(token, static_cast<TokenKind>(static_cast<int>(TokenKind::Identifier) + isKeyword), end);
    if (charIs(*end, kTypeMark | kForeign)) [[unlikely]]
        finishName(token, end);
}

} // namespace qltoolkit
