#include "Apps/workbench/code/edit_commands.h"
#include "Apps/workbench/bars/command_icons.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/code_lines.h"
#include "Apps/workbench/code/code_texts.h"
#include "Apps/workbench/code/definition.h"
#include "Apps/workbench/code/scintilla.h"
#include "Apps/workbench/window/main_window.h"
#include <QBoxLayout>
#include <QInputDialog>
#include <QMenu>
#include <algorithm>

namespace workbench {

namespace {

/// As many positions are gone back to as the language's own IDE knows.
constexpr std::size_t kMostPositions = 8;

std::shared_ptr<host::Bar> popupOf(host::Host& host, int id) {
    return basic::cast<host::BarControl>(host.CommandBars()->FindControl(id)).shared()->popup();
}

} // namespace

const EditCommands::Entry EditCommands::kEditMenu[] = {
    {kUndoId, "&Undo", &EditCommands::undo, false, true},
    {kRedoId, "&Redo", &EditCommands::redo, false},
    {kCutId, "Cu&t", &EditCommands::cut, true},
    {kCopyId, "&Copy", &EditCommands::copy, false},
    {kPasteId, "&Paste", &EditCommands::paste, false},
    {kCutLineId, "Cut &Line", &EditCommands::cutLine, false},
    {kSelectAllId, "Select &All", &EditCommands::selectAll, false},
    {kFindId, "&Find...", &EditCommands::find, true},
    {kFindNextId, "Find &Next", &EditCommands::findNext, false},
    {kFindPreviousId, "Find Pre&vious", &EditCommands::findPrevious, false},
    {kReplaceId, "R&eplace...", &EditCommands::replace, false},
    {kIndentId, "&Indent", &EditCommands::indent, true},
    {kOutdentId, "&Outdent", &EditCommands::outdent, false},
    {kCommentId, "Co&mment Block", &EditCommands::comment, false},
    {kUncommentId, "Uncomment Bloc&k", &EditCommands::uncomment, false},
    {kNextProcedureId, "Ne&xt Procedure", &EditCommands::nextProcedure, true},
    {kPreviousProcedureId, "Previou&s Procedure", &EditCommands::previousProcedure, false},
    {kGoToLineId, "&Go to Line...", &EditCommands::askForLine, false},
};

const EditCommands::Entry EditCommands::kViewMenu[] = {
    {kDefinitionId, "&Definition", &EditCommands::showDefinition, false},
    {kLastPositionId, "Last Positio&n", &EditCommands::showLastPosition, false},
};

const int EditCommands::kEditorMenu[] = {
    kCutId,        kCopyId,         kPasteId, 0,         kFindId,    kReplaceId, 0,
    kDefinitionId, kLastPositionId, 0,        kIndentId, kOutdentId, kCommentId, kUncommentId,
};

EditCommands::EditCommands(host::Host& host, MainWindow& window, Elsewhere elsewhere)
    : QObject(&window),
      window_(window),
      bar_(new FindBar(window.code(), [&window](const auto& act) { window.run(act); })),
      elsewhere_(std::move(elsewhere)) {
    addFindBar();
    fill(*popupOf(host, host::kEditMenuId), std::begin(kEditMenu), std::end(kEditMenu));
    fill(*popupOf(host, host::kViewMenuId), std::begin(kViewMenu), std::end(kViewMenu));
    window.code().made = [this](CodeEditor& editor) { attach(editor); };
    connect(&window.code(), &QTabWidget::currentChanged, this,
            [this](int index) { enable(index >= 0, index >= 0 && window_.code().current()); });
    enable(false, false);
}

/// Below whatever stands in the middle of the window.
void EditCommands::addFindBar() {
    auto* const middle = window_.takeCentralWidget();
    auto* const both = new QWidget;
    auto* const rows = new QVBoxLayout(both);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(middle, 1);
    rows->addWidget(bar_);
    window_.setCentralWidget(both);
    middle->show(); // whoever takes it out hides it, and it loses the keys
    middle->setFocus();
}

void EditCommands::fill(host::Bar& menu, const Entry* first, const Entry* end) {
    for (const auto& entry : std::vector<Entry>(first, end)) {
        const auto control = menu.add(office::msoControlButton, entry.id);
        control->Caption(entry.caption);
        control->BeginGroup(entry.begins);
        control->action = [this, entry] {
            if (auto* const editor = window_.code().current())
                (this->*entry.act)(*editor);
            else if (elsewhere_)
                elsewhere_(entry.id);
        };
        controls_.push_back(control);
        if (entry.everywhere) everywhere_.push_back(control);
    }
}

void EditCommands::enable(bool hasWindow, bool hasEditor) {
    for (const auto& control : controls_) control->Enabled(hasEditor);
    for (const auto& control : everywhere_) control->Enabled(hasEditor || (hasWindow && elsewhere_));
}

// ---- the editors' own menu --------------------------------------------------------------------------------------------

void EditCommands::attach(CodeEditor& editor) {
    bindKeys(editor.scintilla());
    editor.scintilla().setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&editor.scintilla(), &QWidget::customContextMenuRequested, this,
            [this, &editor](const QPoint& at) { showMenu(editor, at); });
}

void EditCommands::showMenu(CodeEditor& editor, const QPoint& at) {
    QMenu menu;
    menu.setObjectName("editorMenu");
    for (const int id : kEditorMenu) {
        const auto found =
            std::find_if(controls_.begin(), controls_.end(), [id](const auto& control) { return control->Id() == id; });
        if (found == controls_.end()) {
            menu.addSeparator();
            continue;
        }
        const auto control = *found;
        auto* const action = menu.addAction(qt(control->Caption()));
        action->setShortcut(shortcutOf(id));
        action->setShortcutVisibleInContextMenu(true);
        connect(action, &QAction::triggered, this, [this, control] { window_.run([&] { control->Execute(); }); });
    }
    menu.exec(editor.scintilla().mapToGlobal(at));
}

// ---- what the commands do ---------------------------------------------------------------------------------------------

void EditCommands::undo(CodeEditor& editor) { editor.scintilla().undo(); }
void EditCommands::redo(CodeEditor& editor) { editor.scintilla().redo(); }
void EditCommands::cut(CodeEditor& editor) { editor.scintilla().cut(); }
void EditCommands::copy(CodeEditor& editor) { editor.scintilla().copy(); }
void EditCommands::paste(CodeEditor& editor) { editor.scintilla().paste(); }
void EditCommands::cutLine(CodeEditor& editor) { workbench::cutLine(editor.scintilla()); }
void EditCommands::selectAll(CodeEditor& editor) { editor.scintilla().selectAll(); }
void EditCommands::find(CodeEditor&) { bar_->open(false); }
void EditCommands::findNext(CodeEditor&) { bar_->findAgain(false); }
void EditCommands::findPrevious(CodeEditor&) { bar_->findAgain(true); }
void EditCommands::replace(CodeEditor&) { bar_->open(true); }
void EditCommands::indent(CodeEditor& editor) { indentLines(editor.scintilla()); }
void EditCommands::outdent(CodeEditor& editor) { outdentLines(editor.scintilla()); }
void EditCommands::comment(CodeEditor& editor) { commentLines(editor.scintilla()); }
void EditCommands::uncomment(CodeEditor& editor) { uncommentLines(editor.scintilla()); }
void EditCommands::nextProcedure(CodeEditor& editor) { editor.goToProcedure(false); }
void EditCommands::previousProcedure(CodeEditor& editor) { editor.goToProcedure(true); }

void EditCommands::askForLine(CodeEditor& editor) {
    bool accepted = false;
    const int last = editor.scintilla().lines();
    const int line = QInputDialog::getInt(&window_, "Go to Line", QString("Line (1 to %1):").arg(last),
                                          editor.place().line + 1, 1, last, 1, &accepted);
    if (accepted) editor.goToLine(line);
}

void EditCommands::showDefinition(CodeEditor& editor) {
    auto from = editor.place();
    const auto name = nameAt(editor.lineText(from.line), from.column);
    const auto place = definitionOf(name, from);
    if (!place) {
        if (!name.name.isEmpty()) bar_->tell(QString(code_texts::kNotDeclared).arg(name.name));
        return;
    }
    from.length = 0;
    positions_.push_back(from);
    if (positions_.size() > kMostPositions) positions_.erase(positions_.begin());
    window_.code().showPlace(*place);
}

void EditCommands::showLastPosition(CodeEditor&) {
    while (!positions_.empty()) {
        const auto place = positions_.back();
        positions_.pop_back();
        const auto failed = basic::attempt([&] { window_.code().showPlace(place); });
        if (failed.Number == 0) return; // else its component was removed
    }
}

} // namespace workbench
