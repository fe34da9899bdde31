#include "Apps/workbench/code/find_bar.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/code_texts.h"
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <QToolButton>

namespace workbench {

namespace {

constexpr auto kCaseKey = "find/matchCase", kWordKey = "find/wholeWord", kPatternKey = "find/pattern",
               kScopeKey = "find/scope";
constexpr int kLabelWidth = 62, kOuterMargin = 4, kGap = 6;

struct ScopeName {
    FindScope scope;
    const char *caption, *name;
};
constexpr ScopeName kScopes[] = {
    {FindScope::Procedure, "Current Procedure", "current procedure"},
    {FindScope::Module, "Current Module", "current module"},
    {FindScope::Project, "Current Project", "current project"},
};

QPushButton* findButton(const char* name, const char* caption, const char* tip) {
    auto* const made = new QPushButton(caption);
    made->setObjectName(name);
    made->setToolTip(tip);
    made->setAutoDefault(false);
    return made;
}

QCheckBox* findOption(const char* name, const char* caption, const char* tip) {
    auto* const made = new QCheckBox(caption);
    made->setObjectName(name);
    made->setToolTip(tip);
    return made;
}

QLineEdit* findField(const char* name, const char* accessibleName) {
    auto* const made = new QLineEdit;
    made->setObjectName(name);
    made->setAccessibleName(accessibleName);
    made->setClearButtonEnabled(true);
    return made;
}

QHBoxLayout* rowOf(QWidget* widget) {
    auto* const row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    return row;
}

QLabel* labelOf(const char* caption, QWidget* buddy) {
    auto* const label = new QLabel(caption);
    label->setFixedWidth(kLabelWidth);
    label->setBuddy(buddy);
    return label;
}

} // namespace

FindBar::FindBar(CodeWindows& code, Run run)
    : code_(code),
      run_(std::move(run)),
      what_(findField("findWhat", "Find what")),
      with_(findField("replaceWith", "Replace with")),
      matchCase_(findOption("matchCase", "Match ca&se", "Capital letters count")),
      wholeWord_(findOption("wholeWord", "Whole w&ord", "Not within longer words")),
      asPattern_(
          findOption("pattern", "Pa&ttern", "? one character, # one digit, * any, [a-z] one of these, [!a-z] none")),
      scope_(new QComboBox),
      said_(new QLabel) {
    setObjectName("findBar");
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(kOuterMargin, kOuterMargin, kOuterMargin, kOuterMargin);
    rows->setSpacing(kOuterMargin);
    rows->addWidget(findRow());
    rows->addWidget(replacing_ = replaceRow());
    rows->addWidget(optionRow());
    rows->addWidget(said_);
    said_->setObjectName("findSaid");
    said_->setTextFormat(Qt::PlainText);
    said_->setWordWrap(true);
    said_->hide();
    restoreOptions();
    hide();
}

QWidget* FindBar::findRow() {
    auto* const next = findButton("findNext", "Find &Next", "F3");
    auto* const previous = findButton("findPrevious", "Previo&us", "Shift+F3");
    auto* const close = new QToolButton;
    close->setObjectName("closeFind");
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip("Close (Esc)");
    close->setAccessibleName("Close");
    close->setAutoRaise(true);
    connect(next, &QPushButton::clicked, this, [this] { run_([this] { findAgain(false); }); });
    connect(previous, &QPushButton::clicked, this, [this] { run_([this] { findAgain(true); }); });
    connect(close, &QToolButton::clicked, this, &QWidget::hide);

    auto* const widget = new QWidget;
    auto* const row = rowOf(widget);
    row->addWidget(labelOf("Fin&d:", what_));
    row->addWidget(what_, 1);
    row->addWidget(next);
    row->addWidget(previous);
    row->addWidget(close);
    return widget;
}

QWidget* FindBar::replaceRow() {
    auto* const one = findButton("replace", "Replace", "Replaces what is selected, and finds the next one");
    auto* const all = findButton("replaceAll", "Repla&ce All", "All within the procedure, module or project");
    connect(one, &QPushButton::clicked, this, [this] { run_([this] { replace(); }); });
    connect(all, &QPushButton::clicked, this, [this] { run_([this] { replaceAll(); }); });
    auto* const widget = new QWidget;
    auto* const row = rowOf(widget);
    row->addWidget(labelOf("Rep&lace:", with_));
    row->addWidget(with_, 1);
    row->addWidget(one);
    row->addWidget(all);
    return widget;
}

QWidget* FindBar::optionRow() {
    scope_->setObjectName("findScope");
    scope_->setAccessibleName("Look in");
    scope_->setToolTip("Where to look");
    for (const auto& one : kScopes) scope_->addItem(one.caption);
    auto* const widget = new QWidget;
    auto* const row = rowOf(widget);
    row->addWidget(labelOf("&In:", scope_));
    for (QWidget* one : {static_cast<QWidget*>(scope_), static_cast<QWidget*>(matchCase_),
                         static_cast<QWidget*>(wholeWord_), static_cast<QWidget*>(asPattern_)})
        row->addWidget(one);
    row->addStretch(1);
    return widget;
}

// ---- what the user set ------------------------------------------------------------------------------------------------

void FindBar::restoreOptions() {
    const QSettings settings;
    matchCase_->setChecked(settings.value(kCaseKey).toBool());
    wholeWord_->setChecked(settings.value(kWordKey).toBool());
    asPattern_->setChecked(settings.value(kPatternKey).toBool());
    const int module = int(FindScope::Module);
    scope_->setCurrentIndex(std::clamp(settings.value(kScopeKey, module).toInt(), 0, scope_->count() - 1));
}

void FindBar::storeOptions() const {
    QSettings settings;
    settings.setValue(kCaseKey, matchCase_->isChecked());
    settings.setValue(kWordKey, wholeWord_->isChecked());
    settings.setValue(kPatternKey, asPattern_->isChecked());
    settings.setValue(kScopeKey, scope_->currentIndex());
}

CodePattern FindBar::pattern() const {
    return {what_->text(), {matchCase_->isChecked(), wholeWord_->isChecked(), asPattern_->isChecked()}};
}

FindScope FindBar::scope() const { return kScopes[std::size_t(scope_->currentIndex())].scope; }

// ---- coming and going -------------------------------------------------------------------------------------------------

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

void FindBar::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous()) return;
    storeOptions();
    if (auto* const editor = code_.current()) editor->setFocus();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        hide();
    else if (enter && with_->hasFocus())
        run_([this] { replace(); });
    else if (enter)
        run_([this, event] { findAgain(event->modifiers().testFlag(Qt::ShiftModifier)); });
    else
        QWidget::keyPressEvent(event);
}

/// Where it is hidden it comes up, but the keys stay with the editor.
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

void FindBar::showError(const QString& text) { say(text, true); }

// ---- finding ----------------------------------------------------------------------------------------------------------

bool FindBar::canLookFor(const CodePattern& pattern) {
    if (pattern.error().isEmpty()) return true;
    say(pattern.error(), true);
    return false;
}

void FindBar::findAgain(bool backwards) {
    auto* const editor = code_.current();
    const auto wanted = pattern();
    if (!editor || (what_->text().isEmpty() && isHidden())) return open(false);
    if (!canLookFor(wanted)) return;
    const auto found = findNext(wanted, scope(), editor->place(), backwards);
    if (!found) return say(QString(code_texts::kNotFound).arg(what_->text(), kScopes[std::size_t(scope())].name), true);
    say(!found->wentRound ? QString() : backwards ? code_texts::kWentRoundUp : code_texts::kWentRound);
    bringUp(found->place);
}

/// Opens the window of the module where there is none, and leaves the keys where they are.
void FindBar::bringUp(const CodePlace& place) {
    auto* const focus = focusWidget();
    const bool here = focus && focus->hasFocus();
    code_.showPlace(place);
    if (here) focus->setFocus();
}

// ---- replacing --------------------------------------------------------------------------------------------------------

void FindBar::replace() {
    auto* const editor = code_.current();
    const auto wanted = pattern();
    if (!editor || !canLookFor(wanted)) return;
    const auto place = editor->place();
    const auto hits = wanted.hitsIn(editor->lineText(place.line));
    const bool isHit = std::find(hits.begin(), hits.end(), LineHit{place.column, place.length}) != hits.end();
    if (isHit) editor->replace({place}, with_->text());
    findAgain(false);
}

void FindBar::replaceAll() {
    auto* const editor = code_.current();
    const auto wanted = pattern();
    if (!editor || !canLookFor(wanted)) return;
    const auto from = editor->place();
    std::size_t count = 0, modules = 0;
    for (const auto& hits : findAll(wanted, scope(), from)) {
        // in its window, so that the user sees it and can undo it
        bringUp(hits.places.front());
        if (!code_.editorOf(hits.component)->replace(hits.places, with_->text()))
            return say(QString(code_texts::kRefused).arg(qt(hits.component->Name())), true);
        count += hits.places.size();
        ++modules;
    }
    if (count == 0)
        return say(QString(code_texts::kNotFound).arg(what_->text(), kScopes[std::size_t(scope())].name), true);
    bringUp({from.component, from.line, from.column, 0});
    say(modules > 1 ? QString(code_texts::kReplacedInModules).arg(count).arg(modules)
                    : QString(code_texts::kReplaced).arg(count));
}

} // namespace workbench
