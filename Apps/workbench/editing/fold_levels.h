#pragma once
#include <QTimer>

class QsciScintilla;

namespace workbench {

/// Keeps the levels of blocks, by which the editing component folds them. An edit reads the lines that it changes and
/// those whose level changes with them, which end with the procedure; many of them are read when the loop turns.
class FoldLevels {
public:
    /// The text outlives this.
    explicit FoldLevels(QsciScintilla& text);

    /// Called after an edit.
    void update(int line, int linesAdded);
    /// Called after the whole text was replaced.
    void updateAll();

private:
    void run();
    /// Sets the level of a line; false if it was the same.
    bool set(int line);

    QsciScintilla& text_;
    int from_ = 0, to_ = -1; ///< lines to be read; further ones as long as levels change
    QTimer soon_;
};

/// Shows or hides the margin for folding; hiding it unfolds everything.
void showFolding(QsciScintilla& text, bool shown);
/// Folds or unfolds the block around the cursor, which moves to its first line.
void toggleFold(QsciScintilla& text);
void foldProcedures(QsciScintilla& text);
void unfoldAll(QsciScintilla& text);

} // namespace workbench
