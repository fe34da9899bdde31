#include "Apps/workbench/editing/code_input.h"
#include "Apps/workbench/editing/block_typing.h"
#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>

namespace workbench {

namespace {

/// Whether the key is pressed with one that makes it a command. AltGr, which enters characters, is none of these.
bool isChord(const QKeyEvent& event) {
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

} // namespace

void CodeInput::keyPressEvent(QKeyEvent* event) {
    const QScopedValueRollback within(typing_, true);
    if (isChord(*event)) return pressWithoutText(*event);
    if (pressEnter(*event)) return;
    const auto typed = event->text();
    if (typed.isEmpty() || !typed[0].isPrint() || accepts_(typed)) QsciScintilla::keyPressEvent(event);
}

void CodeInput::complete() {
    const QScopedValueRollback within(typing_, true);
    SendScintilla(SCI_AUTOCCOMPLETE);
}

/// The component knows some of these keys, but would insert the others like plain ones.
void CodeInput::pressWithoutText(QKeyEvent& event) {
    QKeyEvent bare(event.type(), event.key(), event.modifiers(), QString(), event.isAutoRepeat());
    QsciScintilla::keyPressEvent(&bare);
    event.setAccepted(bare.isAccepted());
}

bool CodeInput::pressEnter(const QKeyEvent& event) {
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) return false;
    beginUndoAction();
    lineEnds();
    const bool entered = enterLine(*this);
    endUndoAction();
    return entered;
}

void CodeInput::inputMethodEvent(QInputMethodEvent* event) {
    const QScopedValueRollback within(typing_, true);
    if (event->commitString().isEmpty() || accepts_(event->commitString()))
        return QsciScintilla::inputMethodEvent(event);
    QInputMethodEvent nothing; // replaces what was composed by nothing
    QsciScintilla::inputMethodEvent(&nothing);
}

void CodeInput::dragEnterEvent(QDragEnterEvent* event) {
    const QScopedValueRollback within(dragging_, true);
    QsciScintilla::dragEnterEvent(event);
}

void CodeInput::dragMoveEvent(QDragMoveEvent* event) {
    const QScopedValueRollback within(dragging_, true);
    QsciScintilla::dragMoveEvent(event);
}

/// While something is only dragged over the text, a refusal must not be reported.
bool CodeInput::canInsertFromMimeData(const QMimeData* source) const {
    return QsciScintilla::canInsertFromMimeData(source) && (dragging_ || accepts_(source->text()));
}

} // namespace workbench
