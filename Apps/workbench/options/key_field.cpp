#include "Apps/workbench/options/key_field.h"
#include "Apps/workbench/options/key_option.h"
#include <QKeyEvent>

namespace workbench {

namespace {

bool isModifier(int key) {
    return key == Qt::Key_Control || key == Qt::Key_Shift || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr;
}

bool removes(const QKeyEvent& event) {
    return event.modifiers() == Qt::NoModifier && (event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete);
}

QKeySequence keyOf(const QKeyEvent& event) {
    return QKeySequence(QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key())));
}

bool isTaken(const QKeyEvent& event) { return !isModifier(event.key()) && (removes(event) || canBeKey(keyOf(event))); }

} // namespace

KeyField::KeyField() {
    setReadOnly(true);
    setPlaceholderText("No key");
    setContextMenuPolicy(Qt::NoContextMenu);
}

void KeyField::showKey(const QKeySequence& key) { setText(key.toString(QKeySequence::NativeText)); }

bool KeyField::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && isTaken(static_cast<QKeyEvent&>(*event))) {
        event->accept(); // else it would be a command of the window
        return true;
    }
    return QLineEdit::event(event);
}

void KeyField::keyPressEvent(QKeyEvent* event) {
    if (!isTaken(*event)) return event->ignore();
    pressed(removes(*event) ? QKeySequence() : keyOf(*event));
}

} // namespace workbench
