#pragma once
// The lines between procedures.

class QPainter;
class QsciScintilla;

namespace workbench {

/// Whether a line is drawn below this line of the text (from 0): below the end of a procedure, and above the first one
/// and its comments.
bool isBetweenProcedures(const QsciScintilla& text, int line);

/// Draws the lines between the visible procedures.
void drawProcedureLines(const QsciScintilla& text, QPainter& painter);

} // namespace workbench
