#pragma once
#include "Apps/workbench/marks/marked_lines.h"
#include "Apps/workbench/marks/project_marks.h"

namespace workbench {

/// The marks that the user sets in one editor.
class EditorMarks {
public:
    /// The text outlives this.
    explicit EditorMarks(QsciScintilla& text);

    MarkedLines& bookmarks() { return bookmarks_; }
    /// Sets or removes a breakpoint; false for a line that cannot have one.
    bool toggleBreakpoint(int line);
    bool hasBreakpoint(int line) const { return breakpoints_.contains(line); }
    void clearBreakpoints() { breakpoints_.clear(); }
    /// Removes breakpoints from lines that no longer hold a statement.
    void checkBreakpoints();

    ComponentMarks placed() const;
    void show(const ComponentMarks& marks);

private:
    std::vector<PlacedMark> placed(const MarkedLines& marked) const;

    QsciScintilla& text_;
    MarkedLines bookmarks_, breakpoints_;
};

} // namespace workbench
