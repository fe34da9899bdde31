#include "Apps/workbench/code_editor.h"
#include "Apps/workbench/procedure_list.h"
#include "Apps/workbench/scintilla.h"
#include "Apps/workbench/text.h"
#include "Apps/workbench/vb_lexer.h"
#include <QBoxLayout>
#include <QComboBox>
#include <QSignalBlocker>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kNumberMargin = 0, kMarkMargin = 1;
constexpr int kErrorMark = 1, kWarningMark = 2;
constexpr int kMillisecondsOfRest = 300;
constexpr int kEditings = QsciScintillaBase::SC_MOD_INSERTTEXT | QsciScintillaBase::SC_MOD_DELETETEXT;

} // namespace

CodeEditor::CodeEditor(vbide::Ref<vbide::VBComponent> component, Refused refused)
    : component_(std::move(component)),
      module_(component_->CodeModule()),
      refused_(std::move(refused)),
      objects_(new QComboBox),
      procedures_(new QComboBox),
      text_(new QsciScintilla),
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
    connect(text_, &QsciScintilla::cursorPositionChanged, this, [this] { showProcedure(); });
    rest_.setSingleShot(true);
    rest_.setInterval(kMillisecondsOfRest);
    connect(&rest_, &QTimer::timeout, this, [this] { listProcedures(); });
}

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
    text_->setMarginType(kMarkMargin, QsciScintilla::SymbolMargin);
    text_->setMarginWidth(kMarkMargin, 14);
    text_->setMarginMarkerMask(kMarkMargin, (1 << kErrorMark) | (1 << kWarningMark));
    text_->markerDefine(QsciScintilla::Circle, kErrorMark);
    text_->markerDefine(QsciScintilla::Circle, kWarningMark);
    colour(currentTheme());
    connect(text_, &QsciScintilla::SCN_MODIFIED, this,
            [this](int position, int kind, const char*, int, int linesAdded) {
                if (!loading_ && (kind & kEditings) != 0) edited(position, linesAdded);
            });
}

void CodeEditor::colour(Theme theme) {
    const auto& colours = codeColours(theme);
    lexer_->colour(theme);
    text_->setCaretForegroundColor(colours.text);
    text_->setCaretLineBackgroundColor(colours.currentLine);
    text_->setMarginsBackgroundColor(colours.margin);
    text_->setMarginsForegroundColor(colours.marginText);
    text_->setMarkerBackgroundColor(colours.error, kErrorMark);
    text_->setMarkerForegroundColor(colours.error, kErrorMark);
    text_->setMarkerBackgroundColor(colours.warning, kWarningMark);
    text_->setMarkerForegroundColor(colours.warning, kWarningMark);
}

void CodeEditor::load() {
    loading_ = true;
    int line = 0, column = 0;
    text_->getCursorPosition(&line, &column);
    const int top = text_->firstVisibleLine();
    text_->setText(codeOf(*module_.shared()));
    text_->SendScintilla(QsciScintillaBase::SCI_EMPTYUNDOBUFFER);
    text_->setCursorPosition(std::min(line, text_->lines() - 1), column);
    text_->setFirstVisibleLine(top);
    text_->setMarginWidth(kNumberMargin, QString::number(text_->lines() * 10));
    loading_ = false;
}

void CodeEditor::edited(int position, int linesAdded) {
    const int first = int(text_->SendScintilla(QsciScintillaBase::SCI_LINEFROMPOSITION, position));
    const bool atStart = int(text_->SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, first)) == position;
    passing_ = true;
    try {
        passOn(*module_.shared(), {first, linesAdded, atStart}, [this](int line) {
            auto shown = text_->text(line);
            while (shown.endsWith('\n') || shown.endsWith('\r')) shown.chop(1);
            return text(shown);
        });
    } catch (...) {
        // not from within the change that the editor tells of
        QTimer::singleShot(0, this, [this, error = std::current_exception()] {
            load();
            refused_(error);
        });
    }
    passing_ = false;
    rest_.start();
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
        return std::pair(index, std::clamp(column - 1, 0, int(text_->text(index).remove('\n').size())));
    };
    const auto [fromLine, fromColumn] = within(startLine, startColumn);
    const auto [toLine, toColumn] = within(endLine, endColumn);
    text_->setSelection(fromLine, fromColumn, toLine, toColumn);
    text_->ensureLineVisible(fromLine);
}

void CodeEditor::mark(const std::vector<LineMark>& marks) {
    text_->markerDeleteAll();
    text_->clearAnnotations();
    for (const auto& mark : marks) text_->markerAdd(mark.line - 1, mark.isError ? kErrorMark : kWarningMark);
}

void CodeEditor::listProcedures() {
    members_ = module_->Members();
    const QSignalBlocker ours(objects_);
    showObjectNames(*objects_, members_, *component_.shared());
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

void CodeEditor::goToLine(int line) {
    text_->setCursorPosition(std::max(0, line - 1), 0);
    text_->setFirstVisibleLine(std::max(0, line - 1));
    text_->setFocus();
}

} // namespace workbench
