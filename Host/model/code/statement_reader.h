#pragma once
// Reads the statements of a module and their words, as far as its outline needs them.
#include "Host/files/code_file.h"
#include <cstddef>
#include <string>
#include <string_view>

namespace host {

/// True for letters, digits and "_".
bool isNameCharacter(char c) noexcept;

/// Removes the next word, bracketed name, string or single character from `rest`, with the blanks before it, and
/// returns it. Returns "" at the end and at a comment.
std::string_view takeWord(std::string_view& rest) noexcept;

/// Moves `rest` after the next comma outside parentheses. Returns false if there is none in this statement.
bool skipToComma(std::string_view& rest) noexcept;

/// Reads logical lines: continued lines are joined.
class StatementReader {
public:
    explicit StatementReader(const CodeText& code) : code_(code), count_(code.count()) {}

    bool next();
    int firstLine() const { return int(first_); }
    int lastLine() const { return int(line_); }
    std::string_view text() const { return text_; }

private:
    const CodeText& code_;
    std::size_t count_, line_ = 0, first_ = 0;
    std::string text_;
};

} // namespace host
