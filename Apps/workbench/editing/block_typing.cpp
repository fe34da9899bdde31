#include "Apps/workbench/editing/block_typing.h"
#include "Apps/workbench/editing/block_text.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/options/declared_options.h"

namespace workbench {

namespace {

/// What is inserted at the cursor, and the cursor's column in the line below.
struct NewLine {
    QString inserted;
    int column = 0;
};

/// The place where the line is divided.
struct Cut {
    int line = 0, column = 0;
    QString before, after;
};

Cut cutAt(QsciScintilla& text) {
    Cut cut;
    text.getCursorPosition(&cut.line, &cut.column);
    const auto whole = lineText(text, cut.line);
    cut.before = whole.left(cut.column);
    cut.after = whole.mid(cut.column);
    return cut;
}

bool isBlank(const QString& text) { return text.trimmed().isEmpty(); }

/// The statement before the cursor; empty if it continues in the next line.
BlockLine statementBefore(const QsciScintilla& text, const Cut& cut) {
    if (cut.before.endsWith(" _")) return {};
    QString statement;
    for (int line = BlockText(text).firstOf(cut.line); line < cut.line; ++line) {
        statement += lineText(text, line);
        statement.chop(1);
    }
    return blockLine(statement + cut.before);
}

NewLine newLineAt(const QsciScintilla& text, const Cut& cut) {
    const bool indents = kAutoIndent.stored();
    // before the code of a line its own indentation moves with it
    if (isBlank(cut.before)) return {"\n" + (indents ? cut.before : QString()), indents ? cut.column : 0};
    const BlockText blocks(text);
    const auto statement = statementBefore(text, cut);
    const auto outer = blocks.indentation(blocks.firstOf(cut.line));
    const bool isInner = !statement.opens.empty() || statement.middle != Block::None;
    auto inner = cut.before.endsWith(" _") ? blocks.indentation(cut.line) : outer;
    if (isInner) inner += QString(text.tabWidth(), ' ');
    if (!indents) inner.clear();
    const auto block = statement.opened();
    const bool ends = block != Block::None && isBlank(cut.after) && kAutomaticEnds.stored() &&
                      blocks.lacksEnd(blocks.firstOf(cut.line), block);
    return {"\n" + inner + (ends ? "\n" + outer + endOf(block) : QString()), int(inner.size())};
}

void completeHeader(QsciScintilla& text) {
    const auto cut = cutAt(text);
    if (!isBlank(cut.after) || !kAutomaticEnds.stored()) return;
    if (BlockText(text).firstOf(cut.line) != cut.line || cut.before.endsWith(" _")) return;
    const auto whole = withParentheses(cut.before);
    if (whole == cut.before) return;
    replaceLine(text, cut.line, whole);
    text.setCursorPosition(cut.line, int(whole.size()));
}

/// Blanks after the cursor would add to the indentation.
void removeBlanksAfter(QsciScintilla& text, const Cut& cut) {
    qsizetype blanks = 0;
    while (blanks < cut.after.size() && cut.after[blanks].isSpace()) ++blanks;
    const auto at = text.positionFromLineIndex(cut.line, cut.column);
    if (blanks > 0) text.SendScintilla(QsciScintillaBase::SCI_DELETERANGE, (unsigned long)at, long(blanks));
}

} // namespace

bool enterLine(QsciScintilla& text) {
    if (text.SendScintilla(QsciScintillaBase::SCI_GETSELECTIONS) > 1) return false;
    text.removeSelectedText();
    completeHeader(text);
    const auto cut = cutAt(text);
    if (!isBlank(cut.before) && kAutoIndent.stored()) removeBlanksAfter(text, cut);
    const auto added = newLineAt(text, cut);
    text.insert(added.inserted);
    text.setCursorPosition(cut.line + 1, added.column);
    text.ensureCursorVisible();
    return true;
}

} // namespace workbench
