#include "Apps/workbench/assist/code_assist.h"
#include "Apps/workbench/assist/typed_place.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/editing/code_input.h"
#include "Apps/workbench/editing/margins.h"
#include "Apps/workbench/options/declared_options.h"
#include "Components/QLToolkit/insight/meaning.h"
#include "Components/QLToolkit/insight/signature.h"
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

namespace workbench {

namespace {

using Sci = QsciScintillaBase;

QString richText(const qltoolkit::CallHelp& call) {
    const auto part = [&](std::size_t begin, std::size_t end) {
        return qt(call.text.substr(begin, end - begin)).toHtmlEscaped();
    };
    const auto present = part(call.parameterBegin, call.parameterEnd);
    return part(0, call.parameterBegin) + (present.isEmpty() ? QString() : "<b>" + present + "</b>") +
           part(call.parameterEnd, call.text.size()) +
           (call.help.empty() ? QString() : "<br>" + qt(call.help).toHtmlEscaped());
}

QString richText(const QString& info) { return info.toHtmlEscaped().replace('\n', "<br>"); }

} // namespace

CodeAssist::CodeAssist(CodeInput& pane, ProjectInsight::Component component, ProjectInsight& insight)
    : QObject(&pane),
      text_(pane),
      component_(component),
      insight_(insight),
      names_(pane, std::move(component), insight),
      tip_(pane) {
    setObjectName("codeAssist");
    moved_.setSingleShot(true);
    moved_.setInterval(0);
    connect(&moved_, &QTimer::timeout, this, [this] { moved(); });
    connect(&pane, &QsciScintilla::SCN_CHARADDED, this, [this](int character) { typed(character); });
    connect(&pane, &QsciScintilla::cursorPositionChanged, this, [this] { moved_.start(); });
    pane.installEventFilter(this);
    // before the tool tips of marks, which let others through
    pane.viewport()->installEventFilter(this);
}

void CodeAssist::typed(int character) {
    if (!text_.isTyping()) return;
    names_.typed(QChar(character));
    const bool mayBeginCall = character == '(' || character == ' ' || character == ',';
    if (mayBeginCall && kAutoQuickInfo.stored()) showParameters();
}

void CodeAssist::moved() {
    if (isInCall_)
        updateParameters();
    else
        hideTip();
}

void CodeAssist::showParameters() {
    isInCall_ = true;
    updateParameters();
}

/// In a text that is an argument the tip stays as it is.
void CodeAssist::updateParameters() {
    const TypedPlace place(text_);
    if (place.isInText() && tip_.isVisible()) return;
    const auto known = insight_.of(component_);
    const auto call = known ? qltoolkit::callAt(*known.snapshot, place.in(known.module)) : std::nullopt;
    if (!call) return hideTip();
    tip_.showAt(richText(*call), cursorPosition(text_));
}

void CodeAssist::hideTip() {
    isInCall_ = false;
    tip_.hide();
}

QString CodeAssist::infoAt(int position) {
    const auto known = insight_.of(component_);
    if (!known) return {};
    const TypedPlace place(text_, position);
    return qt(qltoolkit::quickInfo(*known.snapshot, known.module, place.procedure(), place.cursor()));
}

void CodeAssist::showInfo() {
    const auto info = infoAt(cursorPosition(text_));
    hideTip();
    if (!info.isEmpty()) tip_.showAt(richText(info), cursorPosition(text_));
}

bool CodeAssist::showHover(const QPoint& at, const QPoint& global) {
    if (!kAutoQuickInfo.stored() || at.x() < marginsWidth(text_)) return false;
    const auto position = text_.SendScintilla(Sci::SCI_POSITIONFROMPOINTCLOSE, (unsigned long)at.x(), at.y());
    const auto info = position < 0 ? QString() : infoAt(int(position));
    if (info.isEmpty()) return false;
    QToolTip::showText(global, richText(info), text_.viewport());
    return true;
}

bool CodeAssist::pressed(int key) {
    const bool isShown = names_.isShown();
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isShown) names_.acceptChosen();
        return false; // and the line ends
    case Qt::Key_Tab:
        if (isShown) text_.complete();
        return isShown;
    case Qt::Key_Escape:
        if (!isShown && !tip_.isVisible()) return false;
        isShown ? names_.close() : hideTip();
        return true;
    default: return false;
    }
}

bool CodeAssist::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<QHelpEvent&>(*event);
        return watched == text_.viewport() && showHover(help.pos(), help.globalPos());
    }
    if (watched != &text_) return false;
    switch (event->type()) {
    case QEvent::FocusOut:
        if (!names_.isShown()) hideTip();
        return false;
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent&>(*event).key() == Qt::Key_Escape && (names_.isShown() || tip_.isVisible()))
            event->accept();
        return false;
    case QEvent::KeyPress: return keyPressed(static_cast<QKeyEvent&>(*event));
    default: return false;
    }
}

bool CodeAssist::keyPressed(const QKeyEvent& event) {
    if (event.modifiers() == Qt::ControlModifier && event.key() == Qt::Key_J) {
        names_.request(false);
        return true;
    }
    return event.modifiers() == Qt::NoModifier && pressed(event.key());
}

CodeAssist* assistOf(QsciScintilla& pane) {
    return dynamic_cast<CodeAssist*>(pane.findChild<QObject*>("codeAssist", Qt::FindDirectChildrenOnly));
}

} // namespace workbench
