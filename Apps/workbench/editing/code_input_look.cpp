// The look of the editing component.
#include "Apps/workbench/editing/code_input.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/fold_levels.h"
#include "Apps/workbench/editing/margins.h"
#include "Apps/workbench/editing/procedure_lines.h"
#include "Apps/workbench/editing/vb_lexer.h"
#include "Apps/workbench/options/declared_options.h"
#include <QPainter>

namespace workbench {

namespace {

constexpr int kMarkWidth = 14;

/// A part of one colour in another, in percent.
QColor mixed(const QColor& over, const QColor& under, int percent) {
    const auto part = [percent](int a, int b) { return (a * percent + b * (100 - percent)) / 100; };
    return {part(over.red(), under.red()), part(over.green(), under.green()), part(over.blue(), under.blue())};
}

unsigned long numbers(std::initializer_list<MarkNumber> marks) {
    unsigned long all = 0;
    for (const auto mark : marks) all |= 1ul << mark;
    return all;
}

} // namespace

CodeInput::CodeInput(Accepts accepts) : accepts_(std::move(accepts)), lexer_(new VbLexer(this)) {
    setAccessibleName("Code");
    setUtf8(true);
    setEolMode(EolUnix); // the host uses its own line ends
    setLexer(lexer_);
    SendScintilla(SCI_SETPROPERTY, "fold", "0"); // it would fold by indentation
    setIndentationsUseTabs(false);
    setCaretLineVisible(true);
    SendScintilla(SCI_SETSCROLLWIDTHTRACKING, 1UL);
    SendScintilla(SCI_SETSCROLLWIDTH, 1UL);
    prepareMargins();
    bindKeys(*this);
}

void CodeInput::prepareMargins() {
    setMarginType(kNumberMargin, NumberMargin);
    for (const int margin : {kMessageMargin, kOwnMargin}) {
        setMarginType(margin, SymbolMargin);
        setMarginWidth(margin, kMarkWidth);
    }
    setMarginMarkerMask(kMessageMargin, int(numbers({kErrorMark, kWarningMark, kSyntaxMark})));
    setMarginMarkerMask(kOwnMargin, int(numbers({kBookmark, kBreakpoint})));
    setMarginSensitivity(kOwnMargin, true);
    markerDefine(Circle, kErrorMark);
    markerDefine(Circle, kWarningMark);
    markerDefine(RightTriangle, kSyntaxMark);
    markerDefine(static_cast<MarkerSymbol>(SC_MARK_BOOKMARK), kBookmark);
    markerDefine(Circle, kBreakpoint);
    markerDefine(Background, kBreakpointLine);
}

void CodeInput::showIn(const CodeLook& look) {
    const auto& colours = look.colours;
    lexer_->showIn(look);
    setTabWidth(look.tabWidth);
    setMarginsFont(look.font);
    setCaretForegroundColor(colours.text);
    setCaretLineBackgroundColor(colours.currentLine);
    setMarginsBackgroundColor(colours.margin);
    setMarginsForegroundColor(colours.marginText);
    colourMarks(colours);
    procedureLines_ = kProcedureLines.stored() ? mixed(colours.marginText, colours.paper, 60) : QColor();
    showFolding(*this, kFolding.stored());
    setFoldMarginColors(colours.margin, colours.margin);
    widenMargin();
    viewport()->update();
}

void CodeInput::colourMarks(const CodeColours& colours) {
    const std::pair<int, QColor> marks[] = {{kErrorMark, colours.error},
                                            {kWarningMark, colours.warning},
                                            {kSyntaxMark, colours.error},
                                            {kBookmark, colours.keyword},
                                            {kBreakpoint, colours.error}};
    for (const auto& [mark, colour] : marks) {
        setMarkerBackgroundColor(colour, mark);
        setMarkerForegroundColor(colour, mark);
    }
    setMarkerBackgroundColor(mixed(colours.error, colours.paper, 25), kBreakpointLine);
    for (int mark = SC_MARKNUM_FOLDEREND; mark <= int(SC_MARKNUM_FOLDEROPEN); ++mark) {
        SendScintilla(SCI_MARKERSETFORE, (unsigned long)mark, colours.margin);
        SendScintilla(SCI_MARKERSETBACK, (unsigned long)mark, colours.marginText);
    }
}

void CodeInput::widenMargin() { setMarginWidth(kNumberMargin, QString::number(lines() * 10)); }

void CodeInput::paintEvent(QPaintEvent* event) {
    QsciScintilla::paintEvent(event);
    if (!procedureLines_.isValid()) return;
    QPainter painter(viewport());
    painter.setPen(procedureLines_);
    drawProcedureLines(*this, painter);
}

} // namespace workbench
