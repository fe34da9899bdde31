#include "Apps/workbench/marks/editor_marks.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/marks/statement_lines.h"

namespace workbench {

EditorMarks::EditorMarks(QsciScintilla& text)
    : text_(text), bookmarks_(text, {kBookmark}), breakpoints_(text, {kBreakpoint, kBreakpointLine}) {}

bool EditorMarks::toggleBreakpoint(int line) {
    if (!breakpoints_.contains(line) && !holdsStatement(text_, line)) return false;
    breakpoints_.toggle(line);
    return true;
}

void EditorMarks::checkBreakpoints() {
    for (const int line : breakpoints_.lines())
        if (!holdsStatement(text_, line)) breakpoints_.remove(line);
}

std::vector<PlacedMark> EditorMarks::placed(const MarkedLines& marked) const {
    std::vector<PlacedMark> marks;
    for (const int line : marked.lines()) marks.push_back({line, lineText(text_, line).trimmed()});
    return marks;
}

ComponentMarks EditorMarks::placed() const { return {placed(bookmarks_), placed(breakpoints_)}; }

void EditorMarks::show(const ComponentMarks& marks) {
    if (marks.bookmarks.empty() && marks.breakpoints.empty()) {
        bookmarks_.clear();
        return breakpoints_.clear();
    }
    const auto lines = text_.text().split('\n');
    bookmarks_.show(linesOf(marks.bookmarks, lines));
    breakpoints_.show(linesOf(marks.breakpoints, lines));
}

} // namespace workbench
