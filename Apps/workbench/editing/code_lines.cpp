#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/scintilla.h"
#include <algorithm>
#include <functional>

namespace workbench {

namespace {

/// Calls `act` with each selected line, or the cursor's. A line at whose start the selection ends does not count. The
/// lines stay selected as a whole.
void eachLine(QsciScintilla& editor, const std::function<void(int)>& act) {
    int first = 0, column = 0, last = 0, lastColumn = 0;
    editor.getSelection(&first, &column, &last, &lastColumn);
    const bool selected = first >= 0;
    if (!selected) editor.getCursorPosition(&first, &column);
    if (!selected) last = first;
    if (selected && last > first && lastColumn == 0) --last;
    editor.beginUndoAction();
    for (int line = first; line <= last; ++line) act(line);
    editor.endUndoAction();
    const bool hasNext = last + 1 < editor.lines();
    if (selected) editor.setSelection(first, 0, hasNext ? last + 1 : last, hasNext ? 0 : int(editor.text(last).size()));
}

void bind(QsciCommandSet& commands, QsciCommand::Command command, int key) {
    if (auto* const old = commands.boundTo(key)) old->setKey(0);
    if (auto* const one = commands.find(command)) one->setKey(key);
}

/// Removes the key, so that the window's commands get it.
void leave(QsciCommandSet& commands, int key) {
    auto* const command = commands.boundTo(key);
    if (!command) return;
    if (command->key() == key) command->setKey(0);
    if (command->alternateKey() == key) command->setAlternateKey(0);
}

} // namespace

QString lineText(const QsciScintilla& editor, int line) {
    auto shown = editor.text(line);
    while (shown.endsWith('\n') || shown.endsWith('\r')) shown.chop(1);
    return shown;
}

void replaceLine(QsciScintilla& editor, int line, const QString& now) {
    const auto start = editor.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, line);
    const auto length = long(lineText(editor, line).toUtf8().size());
    const auto bytes = now.toUtf8();
    editor.SendScintilla(QsciScintillaBase::SCI_SETTARGETSTART, start);
    editor.SendScintilla(QsciScintillaBase::SCI_SETTARGETEND, start + length);
    editor.SendScintilla(QsciScintillaBase::SCI_REPLACETARGET, std::size_t(bytes.size()), bytes.constData());
}

void replaceDifferences(QsciScintilla& editor, const QString& text) {
    const auto before = editor.text().toUtf8(), now = text.toUtf8();
    const auto shorter = std::min(before.size(), now.size());
    qsizetype first = 0, same = 0;
    while (first < shorter && before[first] == now[first]) ++first;
    while (first > 0 && before[first - 1] != '\n') --first; // whole lines, and whole characters
    while (same < shorter - first && before[before.size() - same - 1] == now[now.size() - same - 1]) ++same;
    const auto endsLine = [first](const QByteArray& text, qsizetype end) {
        return end == first || text[end - 1] == '\n';
    };
    while (same > 0 && !(endsLine(before, before.size() - same) && endsLine(now, now.size() - same))) --same;
    if (before == now) return;
    editor.SendScintilla(QsciScintillaBase::SCI_SETTARGETSTART, (unsigned long)first);
    editor.SendScintilla(QsciScintillaBase::SCI_SETTARGETEND, (unsigned long)(before.size() - same));
    const auto part = now.mid(first, now.size() - same - first);
    editor.SendScintilla(QsciScintillaBase::SCI_REPLACETARGET, std::size_t(part.size()), part.constData());
}

int currentLine(const QsciScintilla& editor) {
    int line = 0, column = 0, lastLine = 0, lastColumn = 0;
    editor.getSelection(&line, &column, &lastLine, &lastColumn);
    if (line < 0) editor.getCursorPosition(&line, &column);
    return line;
}

void indentLines(QsciScintilla& editor) {
    eachLine(editor, [&editor](int line) { editor.indent(line); });
}

void outdentLines(QsciScintilla& editor) {
    eachLine(editor, [&editor](int line) { editor.unindent(line); });
}

void commentLines(QsciScintilla& editor) {
    eachLine(editor, [&editor](int line) { editor.insertAt("'", line, 0); });
}

void uncommentLines(QsciScintilla& editor) {
    eachLine(editor, [&editor](int line) {
        const auto text = editor.text(line);
        int column = 0;
        while (column < text.size() && (text[column] == ' ' || text[column] == '\t')) ++column;
        if (column == text.size() || text[column] != '\'') return;
        const auto at = editor.positionFromLineIndex(line, column);
        editor.SendScintilla(QsciScintillaBase::SCI_DELETERANGE, (unsigned long)at, 1L);
    });
}

void cutLine(QsciScintilla& editor) { editor.SendScintilla(QsciScintillaBase::SCI_LINECUT); }

void bindKeys(QsciScintilla& editor) {
    auto& commands = *editor.standardCommands();
    for (const int key : {int(Qt::CTRL) | Qt::Key_Up, int(Qt::CTRL) | Qt::Key_Down, int(Qt::CTRL) | Qt::Key_D,
                          int(Qt::CTRL) | Qt::Key_Plus, int(Qt::CTRL) | Qt::Key_Minus, int(Qt::CTRL) | Qt::Key_Slash,
                          int(Qt::CTRL) | Qt::Key_L, int(Qt::CTRL) | Qt::Key_T, int(Qt::CTRL) | Qt::Key_U,
                          int(Qt::CTRL) | int(Qt::SHIFT) | Qt::Key_L, int(Qt::CTRL) | int(Qt::SHIFT) | Qt::Key_T,
                          int(Qt::CTRL) | int(Qt::SHIFT) | Qt::Key_U})
        leave(commands, key);
    bind(commands, QsciCommand::LineCut, int(Qt::CTRL) | Qt::Key_Y);
    bind(commands, QsciCommand::Redo, int(Qt::CTRL) | int(Qt::SHIFT) | Qt::Key_Z);
}

void leaveKey(QsciScintilla& editor, const QKeySequence& key) {
    if (!key.isEmpty()) leave(*editor.standardCommands(), key[0].toCombined());
}

} // namespace workbench
