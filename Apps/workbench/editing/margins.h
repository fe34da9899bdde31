#pragma once
// The margins of an editor from left to right, and the numbers of the marks in them.

class QsciScintilla;

namespace workbench {

enum Margin : int { kNumberMargin, kMessageMargin, kOwnMargin, kFoldMargin };

enum MarkNumber : int {
    kErrorMark = 1,
    kWarningMark,
    kBookmark,
    kBreakpoint,
    kBreakpointLine, ///< colours the line of a breakpoint
    kSyntaxMark,     ///< of the check of a line that was left
};

/// The width of all margins together.
int marginsWidth(const QsciScintilla& text);

} // namespace workbench
