#pragma once
#include <QObject>

class QsciScintilla;

namespace workbench {

/// The line in which the user types. When the cursor leaves it, its keywords get their proper case, as a separate undo
/// step.
class TypedLine final : public QObject {
public:
    /// The text outlives this.
    explicit TypedLine(QsciScintilla& text);

    /// Called after each edit with the line (from 0) in which the user typed, or -1 for any other edit. Lines that are
    /// added or removed, and edits elsewhere, end the typing.
    void typed(int line, int linesAdded);
    void forget() { line_ = -1; }

private:
    void leave();

    QsciScintilla& text_;
    int line_ = -1; ///< -1 for none
};

} // namespace workbench
