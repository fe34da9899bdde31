#pragma once
#include "Components/QLToolkit/insight/probe.h"
#include <string>

class QsciScintilla;

namespace workbench {

/// The text of the procedure around a position of an editor. Positions are bytes of UTF-8.
class TypedPlace {
public:
    /// `position` counts from the start of the whole text.
    TypedPlace(const QsciScintilla& text, int position);
    /// At the cursor.
    explicit TypedPlace(const QsciScintilla& text);

    qltoolkit::CodePlace in(int module) const { return {module, std::string_view(text_).substr(0, cursor_)}; }
    std::string_view rest() const { return std::string_view(text_).substr(cursor_); }
    const std::string& procedure() const { return text_; }
    std::size_t cursor() const { return cursor_; }
    /// Whether the position is inside a string or comment.
    bool isInText() const;

private:
    std::string text_;
    std::size_t cursor_ = 0;
};

/// The position of the cursor.
int cursorPosition(const QsciScintilla& text);

} // namespace workbench
