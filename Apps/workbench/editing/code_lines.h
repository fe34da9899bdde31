#pragma once
// Lines of an editor, and the commands on them.
#include <QKeySequence>
#include <QString>

class QsciScintilla;

namespace workbench {

/// A line (from 0) without its line end.
QString lineText(const QsciScintilla& editor, int line);
void replaceLine(QsciScintilla& editor, int line, const QString& now);
/// Makes this the whole text, but replaces only the lines between the first and the last one that differ.
void replaceDifferences(QsciScintilla& editor, const QString& text);
/// The first line of the selection, or the cursor's if nothing is selected.
int currentLine(const QsciScintilla& editor);

// ---- commands on the selected lines, or the cursor's: each is one undo step ----

void indentLines(QsciScintilla& editor);
void outdentLines(QsciScintilla& editor);
/// Inserts a ' at the start of each line.
void commentLines(QsciScintilla& editor);
/// Removes the first ' of each line that begins with one, after any blanks.
void uncommentLines(QsciScintilla& editor);
/// Cuts the cursor's line to the clipboard.
void cutLine(QsciScintilla& editor);

/// Changes the keys of the editing component to those of the language's own IDE, and leaves others to the window.
void bindKeys(QsciScintilla& editor);
/// Leaves this key to the window.
void leaveKey(QsciScintilla& editor, const QKeySequence& key);

} // namespace workbench
