#pragma once
// Characters to tokens, one at a time and in one pass. Lines that hold no code yield nothing.
#include "Components/QLToolkit/lexer/token.h"
#include "Components/QLToolkit/source/diagnostic.h"

namespace qltoolkit {

class Lexer {
public:
    /// Starts at the Attribute lines of the head.
    Lexer(const SourceText&, Diagnostics&);

    void next(Token&);

    /// The token after the current one, without going there. Not to be asked at the end of a line.
    [[nodiscard]] Token peek();
    /// True when the characters right behind `token` are ":=".
    [[nodiscard]] bool assignsByName(const Token& token) const;

    /// True when a colon, but not ":=", comes right behind `token`.
    [[nodiscard]] bool colonFollows(const Token& token) const;

    /// Goes on behind `hash`, reads the date up to the next #, and makes `hash` its token (kind Date).
    /// False, with the token as it was, when there is no date.
    bool readDate(Token& hash);
    /// Goes to the end of the comment whose first word was read (Rem).
    void skipComment();
    /// At the beginning of a line: goes to the next line that begins with # and a letter. False at the end of the file.
    bool skipToDirective();

    /// While set, nothing is reported: for what follows an error on the same line.
    void quiet(bool on) { quiet_ = on; }
    /// Physical line of the character that comes next.
    [[nodiscard]] std::uint32_t line() const { return line_; }

    /// The longest chain of lines joined by " _".
    static constexpr int kMaxContinuations = 24;
    static constexpr Pos kMaxNameBytes = 255;

private:
    void startLine();
    bool readToken(Token&, bool atStart);
    bool readRareBlank(Token&, const char* p);
    void endLine(Token&, Pos at);
    void readName(Token&, const char* p);
    void readForeignName(Token&, const char* p);
    void readSuffix(Token&);
    void readBracketName(Token&);
    void readNumber(Token&, const char* p);
    void readRadix(Token&, const char* p, int bits);
    void readString(Token&);
    void readOperator(Token&, char c);
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
    std::uint32_t line_;
    int continuations_ = 0;
    bool atLineStart_ = true;
    bool quiet_ = false;
};

} // namespace qltoolkit
