// Line ends, comments and line continuations.
#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/source/characters.h"

namespace qltoolkit {

// End of the current physical line without its line end.
Pos Lexer::contentEnd() const {
    Pos end = line_ < source_.lineCount() ? source_.lineStart(line_ + 1) : source_.size();
    if (end > pos_ && base_[end - 1] == '\n') --end;
    if (end > pos_ && base_[end - 1] == '\r') --end;
    return end;
}

// Skips empty lines and comment lines, so that the parser never sees them.
void Lexer::readFirst(Token& token) {
    atLineStart_ = false;
    continuations_ = 0;
    const char* p = skipBlanks(base_ + pos_);
    if (isLineEnd(*p) || *p == '\'') return readAfterEmptyLines(token, p);
    pos_ = firstOfLine_ = static_cast<Pos>(p - base_);
    next(token);
}

void Lexer::readAfterEmptyLines(Token& token, const char* p) {
    do {
        pos_ = static_cast<Pos>(p - base_);
        if (*p == '\'') skipComment();
        nextLine();
        p = skipBlanks(base_ + pos_);
    } while (isLineEnd(*p) || *p == '\'');
    pos_ = firstOfLine_ = static_cast<Pos>(p - base_);
    next(token);
}

void Lexer::skipComment() {
    for (;;) {
        const Pos end = contentEnd();
        Pos last = end;
        while (last > pos_ && charIs(base_[last - 1], kBlank)) --last;
        const bool goesOn = last >= pos_ + 2 && base_[last - 1] == '_' && charIs(base_[last - 2], kBlank);
        pos_ = end;
        if (!goesOn || line_ >= source_.lineCount()) return;
        nextLine();
    }
}

// Accepts " _" followed only by blanks up to the end of the line.
bool Lexer::continueLine(const char* underscore) {
    const char* p = underscore + 1;
    while (charIs(*p, kBlank)) ++p;
    if (!isLineEnd(*p) || line_ >= source_.lineCount()) return false;
    if (++continuations_ == kMaxContinuations + 1)
        report(Message::TooManyContinuations, static_cast<Pos>(underscore - base_));
    nextLine();
    return true;
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
