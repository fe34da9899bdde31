#include "Apps/workbench/editing/typed_line.h"
#include "Apps/workbench/editing/block_text.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/keyword_case.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/options/declared_options.h"
#include <QTimer>
#include <utility>

namespace workbench {

namespace {

/// The line with the indentation of the line that opened the block that it ends.
QString aligned(const QsciScintilla& text, int line, const QString& now) {
    const BlockText blocks(text);
    const int opener = kAutoIndent.stored() ? blocks.openerOf(line) : -1;
    return opener < 0 ? now : blocks.indentation(opener) + now.mid(blocks.indentation(line).size());
}

} // namespace

TypedLine::TypedLine(QsciScintilla& text, NamesAt namesAt) : text_(text), namesAt_(std::move(namesAt)) {
    connect(&text, &QsciScintilla::cursorPositionChanged, this, [this](int line) {
        if (now_.line >= 0 && line != now_.line) leaveSoon();
    });
}

void TypedLine::forget() {
    now_ = {};
    leftLines_.clear();
}

/// Later, as the cursor's signal is sent while the editor paints, and an edit while it is being made.
void TypedLine::leaveSoon() {
    QTimer::singleShot(0, this, [this] { leave(); });
}

void TypedLine::typed(int line, int linesAdded) {
    if (line >= 0 && linesAdded == 0) {
        const auto before = std::exchange(now_.line, line);
        const bool wasWhole = now_.isWhole;
        const bool isFirst = lineText(text_, line).trimmed().size() <= 1;
        now_.isWhole = isFirst || (now_.isWhole && before == line);
        if (before < 0 || before == line) return;
        leftLines_.push_back({before, wasWhole});
        leaveSoon();
    } else if (line != now_.line)
        now_ = {};
}

void TypedLine::leave() {
    for (const auto& left : std::exchange(leftLines_, {}))
        if (currentLine(text_) != left.line) correct(left);
    if (now_.line < 0 || currentLine(text_) == now_.line) return;
    correct(std::exchange(now_, {}));
}

void TypedLine::finish() {
    int line = 0, column = 0;
    text_.getCursorPosition(&line, &column);
    if (line != now_.line) return;
    const auto fromEnd = lineText(text_, line).size() - column;
    correct(std::exchange(now_, {}));
    text_.setCursorPosition(line, int(lineText(text_, line).size() - fromEnd));
}

void TypedLine::correct(const Left& typed) {
    const int line = typed.line;
    if (line >= text_.lines()) return;
    QTimer::singleShot(0, this, [this, line] { left(line); });
    if (line > 0 && continuesComment(lineText(text_, line - 1))) return;
    auto now = withKeywordCase(lineText(text_, line), namesAt_(line));
    if (typed.isWhole) now = aligned(text_, line, now);
    if (now == lineText(text_, line)) return;
    text_.beginUndoAction();
    replaceLine(text_, line, now);
    text_.endUndoAction();
}

} // namespace workbench
