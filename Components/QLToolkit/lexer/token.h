#pragma once
// The tokens of the lexer.
#include "Components/QLToolkit/lexer/keywords.h"
#include "Components/QLToolkit/source/source_text.h"

namespace qltoolkit {

enum class TokenKind : std::uint8_t {
    EndOfFile,
    EndOfLine,
    Colon,
    Identifier, ///< a name, with or without brackets and type character; suffix is set
    Keyword,
    Integer,
    Long,
    Currency, ///< integer holds the value (Currency: times 10,000)
    Single,
    Double,
    Date,      ///< real holds the value; a # becomes one by Lexer::readDate
    String,    ///< begin and end include the quotes
    Directive, ///< the # of #If, #Else and so on at the beginning of a line
    Hash,
    Comma,
    Semicolon,
    Dot,
    Bang,
    LeftParen,
    RightParen,
    ColonEqual,
    Caret,
    Star,
    Slash,
    Backslash,
    Plus,
    Minus,
    Ampersand,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Invalid, ///< reported by the lexer
};

struct Token {
    TokenKind kind = TokenKind::EndOfFile;
    Keyword keyword = Keyword::None; ///< for Identifier: the keyword that it would be without its type character
    char suffix = 0;
    bool spaceBefore = false;
    bool doubled = false; ///< String: contains a doubled quote
    Pos begin = 0;
    Pos end = 0;
    union {
        std::int64_t integer = 0;
        double real;
        std::uint64_t nameKey; ///< words: nameKey of the name, or 0 in brackets or with letters other than ASCII
    };

    [[nodiscard]] bool is(TokenKind k) const { return kind == k; }
    [[nodiscard]] bool is(Keyword k) const { return kind == TokenKind::Keyword && keyword == k; }
    [[nodiscard]] bool endsLine() const { return kind <= TokenKind::EndOfLine; }
    [[nodiscard]] bool endsStatement() const { return kind <= TokenKind::Colon; }
    [[nodiscard]] bool isWord() const { return kind == TokenKind::Identifier || kind == TokenKind::Keyword; }
};

} // namespace qltoolkit
