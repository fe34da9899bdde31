#include "Apps/workbench/assist/line_check.h"
#include "Apps/workbench/assist/typed_place.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/editing/block_text.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/margins.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/options/declared_options.h"
#include "Components/QLToolkit/insight/line_check.h"
#include "Components/QLToolkit/insight/procedure_text.h"

namespace workbench {

namespace {

/// Whether a line is inside a procedure, below its head.
bool isInProcedure(const QsciScintilla& text, int line) {
    const TypedPlace place(text, int(text.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, (unsigned long)line)));
    return place.cursor() > 0;
}

} // namespace

LineCheck::LineCheck(QsciScintilla& text) : QObject(&text), text_(text) {}

void LineCheck::check(int line) {
    if (!kAutoSyntaxCheck.stored() || line >= text_.lines()) return;
    const BlockText blocks(text_);
    const int first = blocks.firstOf(line);
    QString statement = lineText(text_, first);
    int last = first;
    while (last + 1 < text_.lines() && blocks.isContinued(last + 1)) statement += '\n' + lineText(text_, ++last);
    removeFrom(first, last);
    const auto error = qltoolkit::errorOfStatement(text(statement), isInProcedure(text_, first));
    if (!error) return;
    const int at = std::min(first + std::max(int(error->line), 1) - 1, last);
    texts_[text_.markerAdd(at, kSyntaxMark)] = qt(error->text);
    found(qt(error->text));
}

void LineCheck::removeFrom(int first, int last) {
    std::erase_if(texts_, [&](const auto& mark) {
        const int line = text_.markerLine(mark.first);
        if (line >= 0 && (line < first || line > last)) return false;
        text_.markerDeleteHandle(mark.first);
        return true;
    });
}

QString LineCheck::textAt(int line) const {
    for (const auto& [mark, error] : texts_)
        if (text_.markerLine(mark) == line) return error;
    return {};
}

} // namespace workbench
