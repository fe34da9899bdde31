#include "Apps/workbench/code/code_editor.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/code_input.h"
#include "Apps/workbench/code/code_lines.h"
#include "Apps/workbench/code/code_texts.h"
#include "Apps/workbench/code/keyword_case.h"
#include "Apps/workbench/code/procedure_list.h"
#include "Apps/workbench/code/vb_lexer.h"
#include "Host/model/component.h"
#include <QBoxLayout>
#include <QComboBox>
#include <QSignalBlocker>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kNumberMargin = 0;
constexpr int kMillisecondsOfRest = 300;
constexpr int kUndoings = QsciScintillaBase::SC_PERFORMED_UNDO | QsciScintillaBase::SC_PERFORMED_REDO;
constexpr int kEditings = QsciScintillaBase::SC_MOD_INSERTTEXT | QsciScintillaBase::SC_MOD_DELETETEXT;

} // namespace

CodeEditor::CodeEditor(vbide::Ref<vbide::VBComponent> component, Refused refused)
    : component_(std::move(component)),
      module_(component_->CodeModule()),
      refused_(std::move(refused)),
      objects_(new QComboBox),
      procedures_(new QComboBox),
      text_(new CodeInput([this](const QString& inserted) { return accepts(inserted); })),
      marks_(*text_),
      lexer_(new VbLexer(this)) {
    objects_->setObjectName("objects");
    procedures_->setObjectName("procedures");
    auto* const lists = new QHBoxLayout;
    lists->addWidget(objects_);
    lists->addWidget(procedures_);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2);
    rows->addLayout(lists);
    rows->addWidget(text_);
    setFocusProxy(text_);
    prepareText();
    load();
    listProcedures();

    connect(objects_, &QComboBox::activated, this, [this] { showProcedureNames(*procedures_, members_, *objects_); });
    connect(procedures_, &QComboBox::activated, this, [this] { goToLine(procedures_->currentData().toInt()); });
    connect(text_, &QsciScintilla::cursorPositionChanged, this, [this](int line) {
        showProcedure();
        // not from within the drawing that the editor tells of
        if (typedLine_ >= 0 && line != typedLine_) QTimer::singleShot(0, this, [this] { leaveLine(); });
    });
    rest_.setSingleShot(true);
    rest_.setInterval(kMillisecondsOfRest);
    connect(&rest_, &QTimer::timeout, this, [this] { listProcedures(); });
}

QsciScintilla& CodeEditor::scintilla() const { return *text_; }

void CodeEditor::prepareText() {
    text_->setAccessibleName("Code");
    text_->setUtf8(true);
    text_->setEolMode(QsciScintilla::EolUnix); // the host has its own line ends
    text_->setLexer(lexer_);
    text_->setTabWidth(4);
    text_->setIndentationsUseTabs(false);
    text_->setAutoIndent(true);
    text_->setCaretLineVisible(true);
    text_->SendScintilla(QsciScintillaBase::SCI_SETSCROLLWIDTHTRACKING, 1UL);
    text_->SendScintilla(QsciScintillaBase::SCI_SETSCROLLWIDTH, 1UL);
    text_->setMarginType(kNumberMargin, QsciScintilla::NumberMargin);
    bindKeys(*text_);
    colour(currentTheme());
    connect(text_, &QsciScintilla::SCN_MODIFIED, this,
            [this](int position, int kind, const char*, int, int linesAdded) {
                if (!loading_ && (kind & kEditings) != 0) edited(position, linesAdded, (kind & kUndoings) != 0);
            });
}

void CodeEditor::colour(Theme theme) {
    const auto& colours = codeColours(theme);
    lexer_->colour(theme);
    text_->setCaretForegroundColor(colours.text);
    text_->setCaretLineBackgroundColor(colours.currentLine);
    text_->setMarginsBackgroundColor(colours.margin);
    text_->setMarginsForegroundColor(colours.marginText);
    marks_.colour(theme);
}

void CodeEditor::load() {
    loading_ = true;
    typedLine_ = -1;
    int line = 0, column = 0;
    text_->getCursorPosition(&line, &column);
    const int top = text_->firstVisibleLine();
    const auto marked = marks_.lines();
    text_->setText(codeOf(*module_));
    text_->SendScintilla(QsciScintillaBase::SCI_EMPTYUNDOBUFFER);
    text_->setCursorPosition(std::min(line, text_->lines() - 1), column);
    text_->setFirstVisibleLine(top);
    marks_.putBack(marked);
    text_->setMarginWidth(kNumberMargin, QString::number(text_->lines() * 10));
    loading_ = false;
}

/// Tells, when the loop turns, of the first character that the file has no byte for.
bool CodeEditor::accepts(const QString& inserted) {
    const auto own = basic::cast<host::Component>(component_);
    if (!own) return true;
    const auto& page = own->source().codePage();
    if (page.tryEncode(text(inserted))) return true;
    QString missing;
    for (const auto code : inserted.toUcs4()) {
        const auto letter = static_cast<char32_t>(code);
        missing = QString::fromUcs4(&letter, 1);
        if (!page.tryEncode(text(missing))) break;
    }
    QTimer::singleShot(0, this, [this, why = text(QString(code_texts::kMissingCharacter).arg(missing))] {
        refused_(std::make_exception_ptr(basic::RuntimeError(basic::kInvalidProcedureCall, why)));
    });
    return false;
}

void CodeEditor::edited(int position, int linesAdded, bool isUndo) {
    const int first = int(text_->SendScintilla(QsciScintillaBase::SCI_LINEFROMPOSITION, position));
    const bool atStart = int(text_->SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, first)) == position;
    typed(text_->isTyping() && !isUndo ? first : -1, linesAdded);
    passing_ = true;
    try {
        passOn(*module_, {first, linesAdded, atStart}, [this](int line) { return text(lineText(line)); });
    } catch (...) { refuse(std::current_exception()); }
    passing_ = false;
    rest_.start();
}

/// Not from within the change that the editor tells of, and once where many fail together.
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

void CodeEditor::showSelection() {
    int startLine = 1, startColumn = 1, endLine = 1, endColumn = 1;
    module_->CodePane()->GetSelection(startLine, startColumn, endLine, endColumn);
    const auto within = [this](int line, int column) {
        const int index = std::clamp(line - 1, 0, text_->lines() - 1);
        return std::pair(index, std::clamp(column - 1, 0, int(lineText(index).size())));
    };
    const auto [fromLine, fromColumn] = within(startLine, startColumn);
    const auto [toLine, toColumn] = within(endLine, endColumn);
    text_->setSelection(fromLine, fromColumn, toLine, toColumn);
    text_->ensureLineVisible(fromLine);
}

// ---- parts of lines ---------------------------------------------------------------------------------------------------

QString CodeEditor::lineText(int line) const {
    auto shown = text_->text(line);
    while (shown.endsWith('\n') || shown.endsWith('\r')) shown.chop(1);
    return shown;
}

CodePlace CodeEditor::place() const {
    int line = 0, column = 0, lastLine = 0, lastColumn = 0;
    text_->getSelection(&line, &column, &lastLine, &lastColumn);
    if (line < 0) {
        text_->getCursorPosition(&line, &column);
        return {component_, line, column, 0};
    }
    const int end = lastLine == line ? lastColumn : int(lineText(line).size());
    return {component_, line, column, end - column};
}

void CodeEditor::select(const CodePlace& place) {
    const int line = std::clamp(place.line, 0, text_->lines() - 1), end = int(lineText(line).size());
    const int column = std::clamp(place.column, 0, end);
    text_->setSelection(line, column, line, std::min(column + place.length, end));
    text_->ensureLineVisible(line);
}

QString CodeEditor::selectedPart() const {
    const auto selected = text_->selectedText();
    return selected.contains('\n') ? QString() : selected;
}

bool CodeEditor::replace(const std::vector<CodePlace>& places, const QString& with) {
    if (!accepts(with)) return false;
    text_->beginUndoAction();
    // from the end, so that what is not yet replaced stays in its place
    for (auto at = places.rbegin(); at != places.rend();) {
        const int line = at->line;
        auto now = lineText(line);
        for (; at != places.rend() && at->line == line; ++at) now.replace(at->column, at->length, with);
        replaceLine(line, now);
    }
    text_->endUndoAction();
    return !refusing_;
}

void CodeEditor::replaceLine(int line, const QString& now) {
    const auto start = text_->SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, line);
    const auto length = long(lineText(line).toUtf8().size());
    const auto bytes = now.toUtf8();
    text_->SendScintilla(QsciScintillaBase::SCI_SETTARGETSTART, start);
    text_->SendScintilla(QsciScintillaBase::SCI_SETTARGETEND, start + length);
    text_->SendScintilla(QsciScintillaBase::SCI_REPLACETARGET, std::size_t(bytes.size()), bytes.constData());
}

// ---- keywords ---------------------------------------------------------------------------------------------------------

/// Keeps the line in which the user typed; lines that come or go elsewhere, and what others do, make an end of it.
void CodeEditor::typed(int line, int linesAdded) {
    if (line >= 0 && linesAdded == 0)
        typedLine_ = line;
    else if (line != typedLine_)
        typedLine_ = -1;
}

/// What was typed gets its keywords written properly, in a step of its own that can be undone.
void CodeEditor::leaveLine() {
    const int line = typedLine_;
    if (line < 0 || line >= text_->lines() || place().line == line) return;
    typedLine_ = -1;
    if (line > 0 && continuesComment(lineText(line - 1))) return;
    const auto now = withKeywordCase(lineText(line));
    if (now == lineText(line)) return;
    text_->beginUndoAction();
    replaceLine(line, now);
    text_->endUndoAction();
}

// ---- procedures -------------------------------------------------------------------------------------------------------

void CodeEditor::listProcedures() {
    members_ = module_->Members();
    const QSignalBlocker ours(objects_);
    showObjectNames(*objects_, members_, *component_);
    showProcedure();
}

void CodeEditor::showProcedure() {
    int line = 0, column = 0;
    text_->getCursorPosition(&line, &column);
    const auto* const within = memberAt(members_, line + 1);
    const QSignalBlocker ours(objects_);
    objects_->setCurrentText(within ? objectOf(*within, *objects_) : generalObject());
    showProcedureNames(*procedures_, members_, *objects_);
    procedures_->setCurrentIndex(within ? procedures_->findData(within->CodeLocation) : 0);
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
    text_->setCursorPosition(std::max(0, line - 1), 0);
    text_->setFirstVisibleLine(std::max(0, line - 1));
    text_->setFocus();
}

} // namespace workbench
