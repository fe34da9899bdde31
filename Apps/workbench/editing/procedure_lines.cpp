#include "Apps/workbench/editing/procedure_lines.h"
#include "Apps/workbench/editing/block_text.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/margins.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/editing/statements.h"
#include <QPainter>

namespace workbench {

namespace {

bool hasCode(const QsciScintilla& text, int line) { return !bareCode(lineText(text, line)).trimmed().isEmpty(); }

/// Whether it is the last line of code above a procedure.
bool endsDeclarations(const QsciScintilla& text, int line) {
    const BlockText blocks(text);
    if (!hasCode(text, line)) return false;
    // comments and blank lines above the first procedure belong to it
    constexpr int kMostComments = 100;
    int below = line + 1;
    while (below < text.lines() && below < line + kMostComments && !hasCode(text, below)) ++below;
    return below < text.lines() && blocks.at(below).beginsProcedure();
}

} // namespace

bool isBetweenProcedures(const QsciScintilla& text, int line) {
    if (line + 1 >= text.lines()) return false;
    return BlockText(text).at(line).endsProcedure() || endsDeclarations(text, line);
}

void drawProcedureLines(const QsciScintilla& text, QPainter& painter) {
    const int left = marginsWidth(text), right = text.viewport()->width();
    const auto first = text.SendScintilla(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE);
    const int shown = int(text.SendScintilla(QsciScintillaBase::SCI_LINESONSCREEN)) + 1;
    const int height = text.textHeight(0);
    for (int row = 0; row < shown; ++row) {
        const auto line = text.SendScintilla(QsciScintillaBase::SCI_DOCLINEFROMVISIBLE, (unsigned long)(first + row));
        const auto next =
            text.SendScintilla(QsciScintillaBase::SCI_DOCLINEFROMVISIBLE, (unsigned long)(first + row + 1));
        // of a folded procedure the last line counts
        if (next > line && isBetweenProcedures(text, int(next) - 1))
            painter.drawLine(left, (row + 1) * height - 1, right, (row + 1) * height - 1);
    }
}

} // namespace workbench
