#pragma once
// The blocks of an editor's text.
#include "Apps/workbench/editing/block_line.h"

class QsciScintilla;

namespace workbench {

/// Reads lines (from 0) when they are asked for, and never more of the text than one procedure.
class BlockText {
public:
    /// The text outlives this.
    explicit BlockText(const QsciScintilla& text) : text_(text) {}

    /// Whether the line continues the statement of the line above.
    bool isContinued(int line) const;
    /// The first line of the statement in this line.
    int firstOf(int line) const;
    /// The statement whose first line this is; empty for a line that continues another one.
    BlockLine at(int line) const;
    /// The blanks at the start of a line.
    QString indentation(int line) const;

    /// Whether the block that a line opens lacks its end.
    bool lacksEnd(int line, Block block) const;
    /// The line that opened the block that this line ends, or in whose middle it is; for a Case or Else the one before
    /// it if there is one. -1 if there is none.
    int openerOf(int line) const;

private:
    bool hasOwnEnd(int line) const;
    int excessAround(int line, Block block) const;
    int count() const;

    const QsciScintilla& text_;
};

} // namespace workbench
