#pragma once
// The statement that the user is typing, up to the cursor.
#include <string>
#include <string_view>
#include <vector>

namespace qltoolkit {

/// The head of a procedure around code that has none.
inline constexpr std::string_view kAnyProcedure = "Sub [?]()\n";

enum class TypedKind : unsigned char { Word, Number, Text, Sign };

struct TypedToken {
    TypedKind kind;
    std::size_t begin, end; ///< in the text that was given
    std::string_view text;

    [[nodiscard]] bool is(std::string_view word) const; ///< ignores case; a word or sign
};

/// A call whose arguments contain the cursor.
struct TypedCall {
    std::size_t begin = 0, end = 0; ///< the tokens of what is called
    std::size_t argument = 0;       ///< from 0
    std::string_view named;         ///< of `name:=`, otherwise empty
};

class TypedStatement {
public:
    /// `before` is the text from the first line of the procedure to the cursor, and outlives this.
    explicit TypedStatement(std::string_view before);

    /// Where the statement's line begins; lines that it continues are part of it.
    [[nodiscard]] std::size_t lineBegin() const { return lineBegin_; }
    /// Whether the cursor is inside a string or a comment.
    [[nodiscard]] bool isInText() const { return isInText_; }
    [[nodiscard]] bool isInNumber() const { return isInNumber_; }
    /// The beginning of the name before the cursor.
    [[nodiscard]] std::string_view partial() const { return partial_; }
    /// The tokens before that, without labels and statements that precede it in the line.
    [[nodiscard]] const std::vector<TypedToken>& tokens() const { return tokens_; }
    /// The token before the name, counted from the end (0 is the last one); null beyond the first.
    [[nodiscard]] const TypedToken* last(std::size_t back = 0) const;

    /// The first token of the chain of names, points and arguments that ends before token `end`. Equals `end` if there
    /// is none.
    [[nodiscard]] std::size_t chainBefore(std::size_t end) const;
    /// The text from token `begin` up to token `end`, in one line.
    [[nodiscard]] std::string textOf(std::size_t begin, std::size_t end) const;
    /// The calls around the cursor, the innermost first.
    [[nodiscard]] std::vector<TypedCall> calls() const;

private:
    void readTokens();
    [[nodiscard]] std::size_t readToken(std::size_t at);
    void startStatement();
    void takePartial();
    [[nodiscard]] bool isAttached(std::size_t token) const;
    [[nodiscard]] std::size_t openingOf(std::size_t closing) const;
    void addOuterCall(std::vector<TypedCall>& calls) const;
    void count(TypedCall& call, std::size_t first) const;

    std::string_view text_;
    std::size_t lineBegin_ = 0;
    std::vector<TypedToken> tokens_;
    std::string_view partial_;
    bool isInText_ = false, isInNumber_ = false;
};

} // namespace qltoolkit
