#include "Apps/workbench/code/find_bar.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/find_options.h"
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <initializer_list>

namespace workbench {

namespace {

constexpr int kOuterMargin = 4;

QPushButton* findButton(const char* name, const char* caption, const char* tip) {
    auto* const made = new QPushButton(caption);
    made->setObjectName(name);
    made->setToolTip(tip);
    made->setAutoDefault(false);
    return made;
}

QLineEdit* findField(const char* name, const char* accessibleName) {
    auto* const made = new QLineEdit;
    made->setObjectName(name);
    made->setAccessibleName(accessibleName);
    made->setClearButtonEnabled(true);
    return made;
}

} // namespace

FindBar::FindBar(CodeWindows& code, Run run)
    : code_(code),
      run_(std::move(run)),
      what_(findField("findWhat", "Find what")),
      with_(findField("replaceWith", "Replace with")),
      options_(new FindOptionsRow),
      said_(new QLabel) {
    setObjectName("findBar");
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(kOuterMargin, kOuterMargin, kOuterMargin, kOuterMargin);
    rows->setSpacing(kOuterMargin);
    rows->addWidget(findRow());
    rows->addWidget(replacing_ = replaceRow());
    rows->addWidget(options_);
    rows->addWidget(said_);
    said_->setObjectName("findSaid");
    said_->setTextFormat(Qt::PlainText);
    said_->setWordWrap(true);
    said_->hide();
    hide();
}

QWidget* FindBar::findRow() {
    auto* const next = findButton("findNext", "Find Ne&xt", "F3");
    auto* const previous = findButton("findPrevious", "Previou&s", "Shift+F3");
    auto* const all = findButton("findAll", "Find All", "List all matches (Ctrl+Enter)");
    auto* const close = new QToolButton;
    close->setObjectName("closeFind");
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip("Close (Esc)");
    close->setAccessibleName("Close");
    close->setAutoRaise(true);
    connect(next, &QPushButton::clicked, this, [this] { run_([this] { findAgain(false); }); });
    connect(previous, &QPushButton::clicked, this, [this] { run_([this] { findAgain(true); }); });
    connect(all, &QPushButton::clicked, this, [this] { run_([this] { findAll(); }); });
    connect(close, &QToolButton::clicked, this, &QWidget::hide);

    auto* const row = new FindRow("Fi&nd:", what_, FindRow::Width::OfWindow);
    for (QWidget* button : std::initializer_list<QWidget*>{next, previous, all, close}) row->add(button);
    return row;
}

QWidget* FindBar::replaceRow() {
    auto* const one = findButton("replace", "Replace", "Replace the selected match and find the next one");
    auto* const all =
        findButton("replaceAll", "Repla&ce All", "Replace all matches in the procedure, module or project");
    connect(one, &QPushButton::clicked, this, [this] { run_([this] { replace(); }); });
    connect(all, &QPushButton::clicked, this, [this] { run_([this] { replaceAll(); }); });
    auto* const row = new FindRow("Rep&lace:", with_, FindRow::Width::OfWindow);
    for (auto* button : {one, all}) row->add(button);
    return row;
}

// ---- showing and hiding ---------------------------------------------------------------------------------------------

void FindBar::open(bool replacing) {
    if (auto* const editor = code_.current()) {
        const auto selected = editor->selectedPart();
        if (!selected.isEmpty()) what_->setText(selected);
    }
    replacing_->setVisible(replacing);
    say({});
    show();
    what_->setFocus();
    what_->selectAll();
}

void FindBar::openForAllProjects() {
    open(false);
    options_->setScope(FindScope::AllProjects);
}

void FindBar::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous()) return;
    options_->store();
    if (auto* const editor = code_.current()) editor->setFocus();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        hide();
    else if (enter && event->modifiers().testFlag(Qt::ControlModifier))
        run_([this] { findAll(); });
    else if (enter && with_->hasFocus())
        run_([this] { replace(); });
    else if (enter)
        run_([this, event] { findAgain(event->modifiers().testFlag(Qt::ShiftModifier)); });
    else
        QWidget::keyPressEvent(event);
}

/// Shows the bar if it is hidden. The focus stays in the editor.
void FindBar::say(const QString& text, bool isError) {
    if (!text.isEmpty() && isHidden()) {
        replacing_->hide();
        show();
    }
    said_->setText(text);
    said_->setVisible(!text.isEmpty());
    auto palette = this->palette();
    if (isError) palette.setColor(QPalette::WindowText, codeColours(currentTheme()).error);
    said_->setPalette(palette);
}

} // namespace workbench
