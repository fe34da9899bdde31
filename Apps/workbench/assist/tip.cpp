#include "Apps/workbench/assist/tip.h"
#include "Apps/workbench/editing/scintilla.h"
#include <QScreen>
#include <QToolTip>
#include <algorithm>

namespace workbench {

using Sci = QsciScintillaBase;

Tip::Tip(QsciScintilla& text) : QLabel(&text, Qt::ToolTip | Qt::BypassGraphicsProxyWidget), text_(text) {
    setObjectName("codeTip");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setTextFormat(Qt::RichText);
    setFrameShape(QFrame::Box);
    constexpr int kMargin = 3;
    setMargin(kMargin);
    setAutoFillBackground(true);
    hide();
}

void Tip::showAt(const QString& richText, int position) {
    setPalette(QToolTip::palette());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    // the size hint of a label is at least its fixed width, here that of a text before
    setMinimumWidth(0);
    setMaximumWidth(QWIDGETSIZE_MAX);
    setWordWrap(false);
    setText(richText);
    const auto room = text_.screen()->availableGeometry();
    if (sizeHint().width() > room.width()) {
        setWordWrap(true);
        setFixedWidth(room.width());
    }
    adjustSize();
    const auto line = text_.SendScintilla(Sci::SCI_LINEFROMPOSITION, (unsigned long)position);
    const int height = int(text_.SendScintilla(Sci::SCI_TEXTHEIGHT, (unsigned long)line));
    const QPoint at(int(text_.SendScintilla(Sci::SCI_POINTXFROMPOSITION, 0, position)),
                    int(text_.SendScintilla(Sci::SCI_POINTYFROMPOSITION, 0, position)) + height);
    const auto global = text_.viewport()->mapToGlobal(at);
    move(std::clamp(global.x(), room.left(), std::max(room.left(), room.right() - width())), global.y());
    show();
}

} // namespace workbench
