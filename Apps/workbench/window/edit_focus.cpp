#include "Apps/workbench/window/edit_focus.h"
#include "Apps/workbench/code/scintilla.h"
#include "Apps/workbench/designer/design_desk.h"
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace workbench {

namespace {

/// The text widget within a widget that has the focus; null if it has none.
QWidget* textOf(QWidget* focus) {
    if (auto* const list = dynamic_cast<QComboBox*>(focus)) return list->lineEdit();
    if (auto* const box = dynamic_cast<QAbstractSpinBox*>(focus)) return box->findChild<QLineEdit*>();
    const bool isText = dynamic_cast<QLineEdit*>(focus) || dynamic_cast<QTextEdit*>(focus) ||
                        dynamic_cast<QPlainTextEdit*>(focus) || dynamic_cast<QsciScintilla*>(focus);
    return isText ? focus : nullptr;
}

} // namespace

EditFocus::EditFocus(CodeWindows& code, DesignDesk& design)
    : QObject(&code), code_(code), design_(design), focus_(QApplication::focusWidget()) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
    connect(&code, &QTabWidget::currentChanged, this, [this] { changed(); });
}

/// A menu, a dialog and another program's window leave the focus where it was.
void EditFocus::follow(QWidget* now) {
    if (dynamic_cast<QMenuBar*>(now) || (!now && !QApplication::activeWindow())) return;
    if (now && now->window()->isModal()) return;
    focus_ = now;
    changed();
}

bool EditFocus::isInEditor() const {
    const auto* const editor = code_.current();
    return editor && focus_ == &editor->scintilla();
}

bool EditFocus::isOnForm() const {
    const auto* const form = design_.forms().current();
    const auto isWithin = [this](const QWidget& part) { return &part == focus_ || part.isAncestorOf(focus_); };
    return form && (!focus_ || isWithin(*form) || isWithin(design_.properties()) || isWithin(design_.toolbox()));
}

bool EditFocus::allows(Enabled where) const {
    switch (where) {
    case Enabled::InCode: return code_.current() != nullptr;
    case Enabled::InEditor: return isInEditor();
    case Enabled::InDesigner: return design_.forms().current() != nullptr;
    case Enabled::InText: return textOf(focus_) != nullptr;
    case Enabled::CanUndo: return textOf(focus_) || isOnForm();
    default: return true;
    }
}

void EditFocus::undo() {
    if (textOf(focus_))
        edit("undo");
    else
        design_.undo();
}

void EditFocus::edit(const char* slot) {
    if (auto* const text = textOf(focus_)) QMetaObject::invokeMethod(text, slot);
}

} // namespace workbench
