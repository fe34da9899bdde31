#include "Apps/workbench/code/typed_line.h"
#include "Apps/workbench/code/code_lines.h"
#include "Apps/workbench/code/keyword_case.h"
#include "Apps/workbench/code/scintilla.h"
#include <QTimer>

namespace workbench {

TypedLine::TypedLine(QsciScintilla& text) : text_(text) {
    connect(&text, &QsciScintilla::cursorPositionChanged, this, [this](int line) {
        // later, as the signal is sent while the editor paints
        if (line_ >= 0 && line != line_) QTimer::singleShot(0, this, [this] { leave(); });
    });
}

void TypedLine::typed(int line, int linesAdded) {
    if (line >= 0 && linesAdded == 0)
        line_ = line;
    else if (line != line_)
        line_ = -1;
}

void TypedLine::leave() {
    const int line = line_;
    if (line < 0 || line >= text_.lines() || currentLine(text_) == line) return;
    line_ = -1;
    if (line > 0 && continuesComment(lineText(text_, line - 1))) return;
    const auto now = withKeywordCase(lineText(text_, line));
    if (now == lineText(text_, line)) return;
    text_.beginUndoAction();
    replaceLine(text_, line, now);
    text_.endUndoAction();
}

} // namespace workbench
