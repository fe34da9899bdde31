#include "Apps/workbench/code/code_editor.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/code_texts.h"
#include "Apps/workbench/code/procedure_bar.h"
#include "Apps/workbench/editing/code_input.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/margins.h"
#include "Apps/workbench/editing/rest.h"
#include "Apps/workbench/events/event_handler.h"
#include "Basic/runtime_error.h"
#include "Host/model/component.h"
#include <QBoxLayout>
#include <algorithm>
#include <optional>

namespace workbench {

namespace {

constexpr int kUndoings = QsciScintillaBase::SC_PERFORMED_UNDO | QsciScintillaBase::SC_PERFORMED_REDO;
constexpr int kEditings = QsciScintillaBase::SC_MOD_INSERTTEXT | QsciScintillaBase::SC_MOD_DELETETEXT;

/// The first character that the code page lacks.
QString firstMissing(const basic::CodePage& page, const QString& inserted) {
    QString character;
    for (const auto code : inserted.toUcs4()) {
        const auto letter = static_cast<char32_t>(code);
        character = QString::fromUcs4(&letter, 1);
        if (!page.tryEncode(text(character))) break;
    }
    return character;
}

} // namespace

CodeEditor::CodeEditor(vbide::Ref<vbide::VBComponent> component, Shared shared, Refused refused)
    : component_(std::move(component)),
      module_(component_->CodeModule()),
      shared_(std::move(shared)),
      refused_(std::move(refused)),
      procedures_(
          new ProcedureBar(component_, {[this](int line) { goToLine(line); },
                                        [this](const auto& object, const auto& event) { addHandler(object, event); }})),
      panes_(new CodePanes([this] { return makePane(); })),
      text_(&panes_->main()),
      marks_(*text_),
      ownMarks_(*text_),
      folds_(*text_) {
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2);
    rows->addWidget(procedures_);
    rows->addWidget(panes_);
    setFocusProxy(text_);
    load();
    ownMarks_.show(shared_.marks->of(component_));
    marks_.also = [this](int line) {
        const auto note = noteOf(line);
        return note.isEmpty() && ownMarks_.hasBreakpoint(line) ? QString(code_texts::kBreakpoint) : note;
    };
    listProcedures();
    watchText();
    rest_.setSingleShot(true);
    rest_.setInterval(kMillisecondsOfRest);
    connect(&rest_, &QTimer::timeout, this, [this] { rested(); });
}

CodeEditor::~CodeEditor() {
    keepMarks();
    // What follows the focus may ask for the active pane, so the panes lose it while they are whole.
    for (auto* const pane : panes_->all()) pane->clearFocus();
    delete panes_; // they call this
}

CodeInput* CodeEditor::makePane() {
    auto* const pane = new CodeInput([this](const QString& inserted) { return accepts(inserted); });
    pane->showIn(storedCodeLook(currentTheme()));
    return pane;
}

void CodeEditor::watchPane(CodeInput& pane) {
    typedLines_[&pane] = std::make_unique<TypedLine>(pane, [this](int line) { return namesAt(line); });
    typedLines_[&pane]->left = [this](int line) { lineLeft(line); };
    pane.lineEnds = [typed = typedLines_[&pane].get()] { typed->finish(); };
    connect(&pane, &QObject::destroyed, this, [this, gone = &pane] { typedLines_.erase(gone); });
    connect(&pane, &QsciScintilla::cursorPositionChanged, this, [this, &pane] {
        if (&pane == &panes_->active()) showCursor();
    });
    connect(&pane, &QsciScintilla::marginClicked, this, [this](int margin, int line) {
        if (margin == kOwnMargin) marginClicked(line);
    });
    marks_.watch(pane);
}

/// The names of libraries are looked for once, and only if the project does not declare all names of the line.
NameLookup CodeEditor::namesAt(int line) {
    return [this, line, own = shared_.names.at(component_, line),
            libraries = std::optional<Spellings>()](const QString& name, const QString& object) mutable {
        const auto known = own(name, object);
        if (!known.isEmpty()) return known;
        if (!libraries) libraries = libraryNames(line);
        return libraries->value(name.toLower());
    };
}

void CodeEditor::showCursor() {
    int line = 0, column = 0;
    panes_->active().getCursorPosition(&line, &column);
    procedures_->showAt(line + 1);
    cursorMoved.raise();
}

/// Both panes report each change of the text.
void CodeEditor::watchText() {
    panes_->each([this](CodeInput& pane) { watchPane(pane); });
    panes_->activated = [this] {
        setFocusProxy(&panes_->active());
        showCursor();
    };
    connect(text_, &QsciScintilla::SCN_MODIFIED, this,
            [this](int position, int kind, const char*, int, int linesAdded) {
                if (!loading_ && (kind & kEditings) != 0) edited(position, linesAdded, (kind & kUndoings) != 0);
            });
}

void CodeEditor::showIn(const CodeLook& look) {
    for (auto* pane : panes_->all()) pane->showIn(look);
}

void CodeEditor::zoomTo(int points) {
    for (auto* pane : panes_->all()) {
        pane->zoomTo(points);
        pane->widenMargin();
    }
}

void CodeEditor::keepMarks() { shared_.marks->keep(component_, ownMarks_.placed()); }

void CodeEditor::rested() {
    (void)basic::attempt([this] { listProcedures(); }); // the component may be removed; then this closes soon
    ownMarks_.checkBreakpoints();
    keepMarks();
}

/// Replaces only the lines that differ, so that marks, folds and the cursor keep their lines.
void CodeEditor::load() {
    loading_ = true;
    for (const auto& [pane, typed] : typedLines_) typed->forget();
    replaceDifferences(*text_, codeOf(*module_));
    text_->SendScintilla(QsciScintillaBase::SCI_EMPTYUNDOBUFFER);
    folds_.updateAll();
    for (auto* pane : panes_->all()) pane->widenMargin();
    loading_ = false;
}

/// Reports the first character that the file's code page lacks, when the loop turns.
bool CodeEditor::accepts(const QString& inserted) {
    const auto own = basic::cast<host::Component>(component_);
    if (!own) return true;
    const auto& page = own->source().codePage();
    if (page.tryEncode(text(inserted))) return true;
    const auto missing = firstMissing(page, inserted);
    QTimer::singleShot(0, this, [this, why = text(QString(code_texts::kMissingCharacter).arg(missing))] {
        refused_(std::make_exception_ptr(basic::RuntimeError(basic::kInvalidProcedureCall, why)));
    });
    return false;
}

void CodeEditor::edited(int position, int linesAdded, bool isUndo) {
    const int first = int(text_->SendScintilla(QsciScintillaBase::SCI_LINEFROMPOSITION, position));
    const bool atStart = int(text_->SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, first)) == position;
    for (const auto& [pane, typed] : typedLines_) typed->typed(pane->isTyping() && !isUndo ? first : -1, linesAdded);
    passing_ = true;
    try {
        passOn(*module_, {first, linesAdded, atStart}, [this](int line) { return text(lineText(line)); });
    } catch (...) { refuse(std::current_exception()); }
    passing_ = false;
    folds_.update(first, linesAdded);
    rest_.start();
}

/// Restores the host's text later, outside of Scintilla's notification, and only once if many edits fail together.
void CodeEditor::refuse(std::exception_ptr error) {
    if (std::exchange(refusing_, true)) return;
    QTimer::singleShot(0, this, [this, error] {
        refusing_ = false;
        load();
        refused_(error);
    });
}

void CodeEditor::codeChanged() {
    if (passing_) return;
    load();
    rest_.start();
}

// ---- procedures -----------------------------------------------------------------------------------------------------

void CodeEditor::listProcedures() {
    int line = 0, column = 0;
    scintilla().getCursorPosition(&line, &column);
    procedures_->list(line + 1);
}

void CodeEditor::addHandler(const EventObject& object, const host::ClassEvent& event) {
    try {
        openHandler(*component_, object, event);
    } catch (const basic::RuntimeError&) { refused_(std::current_exception()); }
    listProcedures();
    scintilla().setFocus();
}

void CodeEditor::goToProcedure(bool before) {
    const int line = place().line + 1;
    int nearest = 0;
    for (const auto& member : module_->Members()) {
        const int at = member.CodeLocation;
        const bool further = before ? at < line && at > nearest : at > line && (nearest == 0 || at < nearest);
        if (isProcedure(member) && further) nearest = at;
    }
    if (nearest > 0) goToLine(nearest);
}

void CodeEditor::goToLine(int line) {
    const int index = std::max(0, line - 1);
    scintilla().setCursorPosition(index, 0);
    scintilla().ensureLineVisible(index); // it may be folded
    scintilla().setFirstVisibleLine(
        int(scintilla().SendScintilla(QsciScintillaBase::SCI_VISIBLEFROMDOCLINE, (unsigned long)index)));
    scintilla().setFocus();
}

} // namespace workbench
