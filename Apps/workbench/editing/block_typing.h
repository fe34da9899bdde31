#pragma once
// What Enter does in code: it keeps the indentation and writes the end of the block that the line opens.

class QsciScintilla;

namespace workbench {

/// Begins a line at the cursor as the user's options ask for. False if the editing component has to do it, as for
/// several selections.
bool enterLine(QsciScintilla& text);

} // namespace workbench
