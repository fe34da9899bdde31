#pragma once
// What commands do to the lines of an editor in which something is selected, or the cursor stands. Each is one step to
// undo.

class QsciScintilla;

namespace workbench {

void indentLines(QsciScintilla& editor);
void outdentLines(QsciScintilla& editor);
/// Puts a ' before each line.
void commentLines(QsciScintilla& editor);
/// Takes away the first ' of each line that begins with one, blanks before it left alone.
void uncommentLines(QsciScintilla& editor);
/// Moves the line of the cursor to the clipboard.
void cutLine(QsciScintilla& editor);

/// Keys as the language's own IDE has them, where the editing component has others.
void bindKeys(QsciScintilla& editor);

} // namespace workbench
