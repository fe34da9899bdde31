#include "Apps/workbench/code/line_marks.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/editing/margins.h"
#include "Apps/workbench/editing/scintilla.h"
#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>

namespace workbench {

namespace {
/// The line at a point of the viewport, including the margin.
int lineAt(const QsciScintilla& text, const QPoint& at) {
    const auto position = text.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMPOINT, (unsigned long)at.x(), at.y());
    return int(text.SendScintilla(QsciScintillaBase::SCI_LINEFROMPOSITION, position));
}

} // namespace

LineMarks::LineMarks(QsciScintilla& text) : text_(text) {}

void LineMarks::watch(QsciScintilla& pane) { pane.viewport()->installEventFilter(this); }

int LineMarks::add(int line, bool isError) {
    return text_.markerAdd(std::clamp(line, 0, text_.lines() - 1), isError ? kErrorMark : kWarningMark);
}

void LineMarks::show(const std::vector<LineMark>& marks) {
    if (marks == marks_) return;
    marks_ = marks;
    std::vector<int> lines;
    for (const auto& mark : marks) lines.push_back(mark.line - 1);
    putBack(lines);
}

std::vector<int> LineMarks::lines() const {
    std::vector<int> lines;
    for (const int handle : handles_) lines.push_back(text_.markerLine(handle));
    return lines;
}

void LineMarks::putBack(const std::vector<int>& lines) {
    for (const auto mark : {kErrorMark, kWarningMark}) text_.markerDeleteAll(mark);
    handles_.clear();
    for (std::size_t i = 0; i < lines.size(); ++i) handles_.push_back(add(lines[i], marks_[i].isError));
}

QString LineMarks::textAt(int line) const {
    QStringList texts;
    for (std::size_t i = 0; i < handles_.size(); ++i)
        if (text_.markerLine(handles_[i]) == line) texts << qt(marks_[i].text);
    return texts.join('\n');
}

bool LineMarks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QObject::eventFilter(watched, event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    auto& pane = dynamic_cast<QsciScintilla&>(*watched->parent());
    const int line = lineAt(pane, help.pos());
    auto says = textAt(line);
    if (says.isEmpty() && help.pos().x() < marginsWidth(pane)) says = also(line);
    if (says.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help.globalPos(), says.toHtmlEscaped().replace('\n', "<br>"), pane.viewport());
    return true;
}

} // namespace workbench
