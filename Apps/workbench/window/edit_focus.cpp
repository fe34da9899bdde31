#include "Apps/workbench/window/edit_focus.h"
#include "Apps/workbench/designer/control_clipboard.h"
#include "Apps/workbench/designer/design_desk.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/form_commands.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/zoom/zoom_view.h"
#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
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
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, [this] { changed(); });
    code.splitChanged = [this] { changed(); };
    selection_ = design.selectionChanged.connect([this] { changed(); });
}

/// A menu, a dialog and another program's window leave the focus where it was.
void EditFocus::follow(QWidget* now) {
    if (dynamic_cast<QMenuBar*>(now) || (!now && !QApplication::activeWindow())) return;
    if (now && now->window()->isModal()) return;
    // the zoom window passes commands on as it does keys
    if (const auto* const zoom = dynamic_cast<ZoomView*>(now); zoom && zoom->canvas()) now = zoom->canvas();
    focus_ = now;
    changed();
}

bool EditFocus::isInEditor() const {
    const auto* const editor = code_.current();
    return editor && focus_ == &editor->scintilla();
}

bool EditFocus::isText() const { return textOf(focus_) != nullptr; }

bool EditFocus::isWithin(const QWidget& part) const { return &part == focus_ || part.isAncestorOf(focus_); }

bool EditFocus::isOnForm() const {
    const auto* const form = design_.forms().current();
    return form && (!focus_ || isWithin(*form) || isWithin(design_.properties()) || isWithin(design_.toolbox()));
}

bool EditFocus::isOnDesigner() const {
    const auto* const form = design_.forms().current();
    return form && (!focus_ || isWithin(*form));
}

bool EditFocus::allows(Enabled where) const {
    const auto* const form = design_.forms().current();
    switch (where) {
    case Enabled::InCode: return code_.current() != nullptr;
    case Enabled::InEditor: return isInEditor();
    case Enabled::InDesigner: return design_.forms().current() != nullptr;
    case Enabled::InText: return isText();
    case Enabled::CanUndo: return isText() || (isOnForm() && design_.stepToUndo());
    case Enabled::CanRedo: return isText() || (isOnForm() && design_.stepToRedo());
    case Enabled::CanCopy: return isText() || (isOnDesigner() && hasSelection(*form));
    case Enabled::CanPaste: return isText() || (isOnDesigner() && hasCopiedControls());
    case Enabled::CanSelect: return isText() || isOnDesigner();
    case Enabled::OnForm: return isOnForm();
    case Enabled::OnControl: return isOnForm() && hasSelection(*form);
    case Enabled::OnOne: return isOnForm() && canArrange(*form, Arrangement::AlignToGrid);
    case Enabled::OnSeveral: return isOnForm() && canArrange(*form, Arrangement::AlignLefts);
    case Enabled::OnThree: return isOnForm() && canArrange(*form, Arrangement::EqualSpaceAcross);
    default: return true;
    }
}

std::string EditFocus::stepToUndo() const { return isText() ? "" : design_.stepToUndo().value_or(""); }

std::string EditFocus::stepToRedo() const { return isText() ? "" : design_.stepToRedo().value_or(""); }

// a command that is enabled without a text has a form

void EditFocus::undo() {
    if (!edit("undo")) design_.undo();
}

void EditFocus::redo() {
    if (!edit("redo")) design_.redo();
}

void EditFocus::cut() {
    if (!edit("cut")) cutControls(*design_.forms().current());
}

void EditFocus::copy() {
    if (!edit("copy")) copyControls(*design_.forms().current());
}

void EditFocus::paste() {
    if (!edit("paste")) pasteControls(*design_.forms().current());
}

void EditFocus::selectAll() {
    if (!edit("selectAll")) workbench::selectAll(*design_.forms().current());
}

/// A text removes what is selected as its Delete key does.
void EditFocus::remove() {
    auto* const text = textOf(focus_);
    if (!text) return design_.forms().current()->removeSelected();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    QApplication::sendEvent(text, &press);
}

bool EditFocus::edit(const char* slot) {
    auto* const text = textOf(focus_);
    if (text) QMetaObject::invokeMethod(text, slot);
    return text != nullptr;
}

} // namespace workbench
