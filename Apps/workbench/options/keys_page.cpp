#include "Apps/workbench/options/keys_page.h"
#include "Apps/workbench/options/key_field.h"
#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>

namespace workbench {

namespace {

enum Column { kMenuColumn, kCommandColumn, kKeyColumn };

QString shownKey(const QKeySequence& key) { return key.toString(QKeySequence::NativeText); }

QLabel* labelOf(const QString& text, QWidget* buddy) {
    auto* const label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

KeysPage::KeysPage(std::vector<KeyOption> options)
    : options_(std::move(options)),
      chosen_(options_.size()),
      filter_(new QLineEdit),
      list_(new QTreeWidget),
      key_(new KeyField),
      reset_(new QPushButton("&Reset")) {
    putTogether();
    fill();
    key_->pressed = [this](const QKeySequence& key) { choose(key); };
    connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) { filter(text); });
    connect(list_, &QTreeWidget::currentItemChanged, this, [this] { showCurrent(); });
    connect(list_, &QTreeWidget::itemActivated, key_, [this] { key_->setFocus(); });
    connect(reset_, &QPushButton::clicked, this, [this] { choose(options_[std::size_t(current())].usual); });
}

void KeysPage::putTogether() {
    filter_->setObjectName("keyFilter");
    filter_->setClearButtonEnabled(true);
    list_->setObjectName("keys");
    list_->setAccessibleName("Commands and their keys");
    key_->setObjectName("key");
    reset_->setObjectName("resetKey");
    reset_->setAutoDefault(false);
    reset_->setToolTip("Gives the command its usual key");
    auto* const top = new QHBoxLayout;
    top->addWidget(labelOf("&Find:", filter_));
    top->addWidget(filter_);
    auto* const bottom = new QHBoxLayout;
    bottom->addWidget(labelOf("Ke&y:", key_));
    bottom->addWidget(key_);
    bottom->addWidget(reset_);
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(top);
    rows->addWidget(list_);
    rows->addLayout(bottom);
    rows->addWidget(new QLabel("Press the new key in the field above. Backspace removes the key."));
}

void KeysPage::fill() {
    list_->setHeaderLabels({"Menu", "Command", "Key"});
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    for (const auto& option : options_) new QTreeWidgetItem(list_, {option.menu, option.command});
    list_->header()->setStretchLastSection(true);
    for (const int column : {kMenuColumn, kCommandColumn}) list_->resizeColumnToContents(column);
    list_->setCurrentItem(list_->topLevelItem(0));
}

int KeysPage::current() const { return list_->indexOfTopLevelItem(list_->currentItem()); }

void KeysPage::choose(const QKeySequence& key) {
    if (current() < 0) return;
    chosen_[std::size_t(current())] = key;
    showKeys();
    changed();
}

void KeysPage::filter(const QString& text) {
    for (int row = 0; row < list_->topLevelItemCount(); ++row) {
        auto* const item = list_->topLevelItem(row);
        bool matches = false;
        for (const int column : {kMenuColumn, kCommandColumn, kKeyColumn})
            matches |= item->text(column).contains(text, Qt::CaseInsensitive);
        item->setHidden(!matches);
    }
    if (auto* const item = list_->currentItem(); item && !item->isHidden()) return;
    for (int row = list_->topLevelItemCount() - 1; row >= 0; --row)
        if (!list_->topLevelItem(row)->isHidden()) list_->setCurrentItem(list_->topLevelItem(row));
}

void KeysPage::showKeys() {
    for (std::size_t command = 0; command < options_.size(); ++command) showRow(command);
    showCurrent();
}

/// A key that the user changed is bold.
void KeysPage::showRow(std::size_t command) {
    auto& item = *list_->topLevelItem(int(command));
    const auto conflict = conflictOf(command);
    auto font = list_->font();
    font.setBold(chosen_[command] != options_[command].usual);
    item.setText(kKeyColumn, shownKey(chosen_[command]));
    item.setFont(kKeyColumn, font);
    item.setIcon(kKeyColumn, conflict.isEmpty() ? QIcon() : style()->standardIcon(QStyle::SP_MessageBoxWarning));
    item.setToolTip(kKeyColumn, conflict);
}

void KeysPage::showCurrent() {
    const bool isAny = current() >= 0;
    key_->setEnabled(isAny);
    reset_->setEnabled(isAny && chosen_[std::size_t(current())] != options_[std::size_t(current())].usual);
    key_->showKey(isAny ? chosen_[std::size_t(current())] : QKeySequence());
}

QString KeysPage::conflictOf(std::size_t command) const {
    for (const auto& key : options_[command].keysWith(chosen_[command]))
        if (const auto commands = commandsWith(key, options_, chosen_); commands.size() > 1)
            return QString("%1 is the key of %2.").arg(shownKey(key), commands.join(" and "));
    return {};
}

QString KeysPage::problem() const {
    for (std::size_t command = 0; command < options_.size(); ++command)
        if (const auto conflict = conflictOf(command); !conflict.isEmpty())
            return conflict + " Change or remove all but one.";
    return {};
}

void KeysPage::showStored() {
    for (std::size_t command = 0; command < options_.size(); ++command) chosen_[command] = options_[command].stored();
    showKeys();
}

void KeysPage::showUsual() {
    for (std::size_t command = 0; command < options_.size(); ++command) chosen_[command] = options_[command].usual;
    showKeys();
}

void KeysPage::store() const {
    for (std::size_t command = 0; command < options_.size(); ++command) options_[command].store(chosen_[command]);
}

} // namespace workbench
