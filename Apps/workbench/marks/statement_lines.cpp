#include "Apps/workbench/marks/statement_lines.h"
#include "Apps/workbench/editing/block_text.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/editing/statements.h"

namespace workbench {

namespace {

bool isDeclaration(const Statement& statement) {
    if (statement.hasWord(0, "Static"))
        return !statement.hasWord(1, "Sub") && !statement.hasWord(1, "Function") && !statement.hasWord(1, "Property");
    return statement.hasWord(0, "Dim") || statement.hasWord(0, "Const");
}

bool hasOnlyDeclarations(const QString& bare) {
    for (const auto& statement : statementsOf(bare))
        if (!statement.text.trimmed().isEmpty() && !isDeclaration(statement)) return false;
    return true;
}

bool isInProcedure(const BlockText& blocks, int line) {
    if (blocks.at(line).beginsProcedure()) return true;
    for (int above = line - 1; above >= 0; --above) {
        const auto found = blocks.at(above);
        if (found.endsProcedure()) return false;
        if (found.beginsProcedure()) return true;
    }
    return false;
}

} // namespace

bool holdsStatement(const QsciScintilla& text, int line) {
    const BlockText blocks(text);
    if (line < 0 || line >= text.lines() || blocks.isContinued(line)) return false;
    const auto bare = bareCode(lineText(text, line));
    return !bare.trimmed().startsWith('#') && !hasOnlyDeclarations(bare) && isInProcedure(blocks, line);
}

} // namespace workbench
