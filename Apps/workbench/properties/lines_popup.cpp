#include "Apps/workbench/properties/lines_popup.h"
#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <utility>

namespace workbench {

namespace {

constexpr int kShownLines = 8, kShownLetters = 32;

bool isEnter(const QKeyEvent& key) { return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter; }

} // namespace

LinesPopup::LinesPopup(QWidget* parent, const QString& name, const QString& lines, Accepted accepted)
    : ValuePopup(parent), lines_(new QPlainTextEdit(lines)), before_(lines), accepted_(std::move(accepted)) {
    setObjectName("linesPopup");
    lines_->setObjectName("lines");
    lines_->setAccessibleName(name);
    lines_->setLineWrapMode(QPlainTextEdit::NoWrap);
    lines_->setTabChangesFocus(true);
    lines_->setFrameShape(QFrame::NoFrame);
    const auto metrics = lines_->fontMetrics();
    lines_->setMinimumSize(metrics.averageCharWidth() * kShownLetters, metrics.lineSpacing() * kShownLines);
    lines_->installEventFilter(this);
    auto* const hint = new QLabel("Ctrl+Enter begins a new line");
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(lines_);
    layout->addWidget(hint);
    setFocusProxy(lines_);
}

bool LinesPopup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QFrame::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Escape) accepted_ = nullptr;
    if (key.key() == Qt::Key_Escape || (isEnter(key) && !(key.modifiers() & Qt::ControlModifier))) {
        close();
        return true;
    }
    if (!isEnter(key)) return QFrame::eventFilter(watched, event);
    lines_->insertPlainText("\n");
    lines_->ensureCursorVisible();
    return true;
}

void LinesPopup::closeEvent(QCloseEvent* event) {
    QFrame::closeEvent(event);
    const auto accepted = std::exchange(accepted_, nullptr);
    if (accepted && lines_->toPlainText() != before_) accepted(lines_->toPlainText());
}

} // namespace workbench
