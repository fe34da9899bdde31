#include "Apps/workbench/editing/typed_line.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/keyword_case.h"
#include "Apps/workbench/editing/scintilla.h"
#include <QTimer>
#include <utility>

namespace workbench {

TypedLine::TypedLine(QsciScintilla& text, NamesAt namesAt) : text_(text), namesAt_(std::move(namesAt)) {
    connect(&text, &QsciScintilla::cursorPositionChanged, this, [this](int line) {
        if (line_ >= 0 && line != line_) leaveSoon();
    });
}

void TypedLine::forget() {
    line_ = -1;
    left_.clear();
}

/// Later, as the cursor's signal is sent while the editor paints, and an edit while it is being made.
void TypedLine::leaveSoon() {
    QTimer::singleShot(0, this, [this] { leave(); });
}

void TypedLine::typed(int line, int linesAdded) {
    if (line >= 0 && linesAdded == 0) {
        const int before = std::exchange(line_, line);
        if (before < 0 || before == line) return;
        left_.push_back(before);
        leaveSoon();
    } else if (line != line_)
        line_ = -1;
}

void TypedLine::leave() {
    for (const int line : std::exchange(left_, {})) correct(line);
    if (line_ < 0 || currentLine(text_) == line_) return;
    correct(std::exchange(line_, -1));
}

void TypedLine::correct(int line) {
    if (line >= text_.lines() || currentLine(text_) == line) return;
    if (line > 0 && continuesComment(lineText(text_, line - 1))) return;
    const auto now = withKeywordCase(lineText(text_, line), namesAt_(line));
    if (now == lineText(text_, line)) return;
    text_.beginUndoAction();
    replaceLine(text_, line, now);
    text_.endUndoAction();
}

} // namespace workbench
