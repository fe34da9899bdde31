// The selection, and replacing parts of lines.
#include "Apps/workbench/code/code_editor.h"
#include "Apps/workbench/editing/code_input.h"
#include "Apps/workbench/editing/code_lines.h"
#include <algorithm>

namespace workbench {

void CodeEditor::showSelection() {
    int startLine = 1, startColumn = 1, endLine = 1, endColumn = 1;
    module_->CodePane()->GetSelection(startLine, startColumn, endLine, endColumn);
    const auto within = [this](int line, int column) {
        const int index = std::clamp(line - 1, 0, scintilla().lines() - 1);
        return std::pair(index, std::clamp(column - 1, 0, int(lineText(index).size())));
    };
    const auto [fromLine, fromColumn] = within(startLine, startColumn);
    const auto [toLine, toColumn] = within(endLine, endColumn);
    scintilla().setSelection(fromLine, fromColumn, toLine, toColumn);
    scintilla().ensureLineVisible(fromLine);
}

QString CodeEditor::lineText(int line) const { return workbench::lineText(*text_, line); }

CodePlace CodeEditor::place() const {
    int line = 0, column = 0, lastLine = 0, lastColumn = 0;
    scintilla().getSelection(&line, &column, &lastLine, &lastColumn);
    if (line < 0) {
        scintilla().getCursorPosition(&line, &column);
        return {component_, line, column, 0};
    }
    const int end = lastLine == line ? lastColumn : int(lineText(line).size());
    return {component_, line, column, end - column};
}

void CodeEditor::select(const CodePlace& place) {
    const int line = std::clamp(place.line, 0, scintilla().lines() - 1), end = int(lineText(line).size());
    const int column = std::clamp(place.column, 0, end);
    scintilla().setSelection(line, column, line, std::min(column + place.length, end));
    scintilla().ensureLineVisible(line);
}

QString CodeEditor::selectedPart() const {
    const auto selected = scintilla().selectedText();
    return selected.contains('\n') ? QString() : selected;
}

bool CodeEditor::replace(const std::vector<CodePlace>& places, const QString& with) {
    if (!accepts(with)) return false;
    text_->beginUndoAction();
    // from the end, so that the remaining places stay valid
    for (auto at = places.rbegin(); at != places.rend();) {
        const int line = at->line;
        auto now = lineText(line);
        for (; at != places.rend() && at->line == line; ++at) now.replace(at->column, at->length, with);
        replaceLine(*text_, line, now);
    }
    text_->endUndoAction();
    return !refusing_;
}

} // namespace workbench
