#pragma once
// One line of a library's description, word by word.
#include <string>
#include <string_view>

namespace language {

class LineReader {
public:
    LineReader(std::string_view line, int number) : line_(line), number_(number) { skipBlanks(); }

    /// Whether nothing follows but help.
    [[nodiscard]] bool atEnd() const { return at_ == line_.size() || line_[at_] == '\''; }
    /// The text after the apostrophe that ends the line's description; "" without one.
    [[nodiscard]] std::string_view help() const;

    [[nodiscard]] bool accept(char sign);
    /// Accepts a whole word.
    [[nodiscard]] bool acceptWord(std::string_view word);
    void expect(char sign);

    /// Letters, digits, underscores and points, with the type character or brackets of a member's name.
    std::string_view name();
    /// A text in quotation marks, without them.
    std::string_view quoted();
    /// Literals, names and calls, joined by "&".
    std::string_view expression();

    /// Throws std::invalid_argument with the line's number, the reason and the line.
    [[noreturn]] void fail(std::string_view reason) const;

private:
    void skipBlanks();
    void term();
    void parentheses();

    std::string_view line_;
    std::size_t at_ = 0;
    int number_ = 0;
};

} // namespace language
