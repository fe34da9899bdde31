#pragma once

class QsciScintilla;

namespace workbench {

/// Whether a line (from 0) begins a statement that runs: it is in a procedure and neither a declaration nor a directive.
bool holdsStatement(const QsciScintilla& text, int line);

} // namespace workbench
