#include "Apps/workbench/menu_editor/menu_fields.h"
#include "Apps/workbench/base/text.h"
#include "Host/model/code/menu_shortcuts.h"
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <limits>

namespace workbench {

namespace {

constexpr int kMostShownKeys = 20, kLargestIndex = 32767;
constexpr int kNarrow = 90;

QLineEdit* field(const char* name) {
    auto* const line = new QLineEdit;
    line->setObjectName(name);
    return line;
}

QLineEdit* numberField(const char* name, int least, int most) {
    auto* const line = field(name);
    line->setValidator(new QIntValidator(least, most, line));
    line->setMaximumWidth(kNarrow);
    return line;
}

template <class Widget>
Widget* named(Widget* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
}

/// The text of a list entry is that of menus, its data the literal.
void listShortcuts(QComboBox& list) {
    list.setMaxVisibleItems(kMostShownKeys);
    list.addItem("(None)", QString());
    for (const auto& key : host::menuShortcuts()) list.addItem(qt(key.text), qt(key.literal));
}

/// A key of another program's list remains.
void selectShortcut(QComboBox& list, const std::string& literal) {
    const auto text = qt(host::shortcutText(literal));
    const int known = literal.empty() ? 0 : list.findText(text);
    if (known < 0) list.addItem(text, qt(literal));
    list.setCurrentIndex(known < 0 ? list.count() - 1 : known);
}

} // namespace

MenuFields::MenuFields()
    : caption_(field("caption")),
      name_(field("name")),
      index_(numberField("index", 0, kLargestIndex)),
      helpContextId_(numberField("helpContextId", std::numeric_limits<int>::min(), std::numeric_limits<int>::max())),
      shortcut_(named(new QComboBox, "shortcut")),
      negotiatePosition_(named(new QComboBox, "negotiatePosition")),
      checked_(named(new QCheckBox("&Checked"), "checked")),
      enabled_(named(new QCheckBox("&Enabled"), "enabled")),
      visible_(named(new QCheckBox("&Visible"), "visible")),
      windowList_(named(new QCheckBox("&WindowList"), "windowList")) {
    listShortcuts(*shortcut_);
    negotiatePosition_->addItems({"0 - None", "1 - Left", "2 - Middle", "3 - Right"});
    layOut();
    watch();
}

void MenuFields::layOut() {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* text, QWidget* widget, int row, int column, int span) {
        auto* const label = new QLabel(text);
        label->setBuddy(widget);
        grid->addWidget(label, row, column);
        grid->addWidget(widget, row, column + 1, 1, span);
    };
    add("Ca&ption:", caption_, 0, 0, 3);
    add("Na&me:", name_, 1, 0, 3);
    add("Inde&x:", index_, 2, 0, 1);
    add("&Shortcut:", shortcut_, 2, 2, 1);
    add("&HelpContextID:", helpContextId_, 3, 0, 1);
    add("NegotiateP&osition:", negotiatePosition_, 3, 2, 1);
    auto* const boxes = new QHBoxLayout;
    for (auto* box : {checked_, enabled_, visible_, windowList_}) boxes->addWidget(box);
    boxes->addStretch();
    grid->addLayout(boxes, 4, 0, 1, 4);
    grid->setColumnStretch(3, 1);
}

void MenuFields::watch() {
    const auto changed = [this] {
        if (!showing_) edited();
    };
    for (auto* line : {caption_, name_, index_, helpContextId_}) connect(line, &QLineEdit::textChanged, this, changed);
    for (auto* list : {shortcut_, negotiatePosition_}) connect(list, &QComboBox::currentIndexChanged, this, changed);
    for (auto* box : {checked_, enabled_, visible_, windowList_}) connect(box, &QCheckBox::toggled, this, changed);
}

void MenuFields::show(const host::FormMenu& menu) {
    const QScopedValueRollback ours(showing_, true);
    caption_->setText(qt(menu.caption));
    name_->setText(qt(menu.name));
    index_->setText(menu.index ? QString::number(*menu.index) : QString());
    helpContextId_->setText(QString::number(menu.helpContextId));
    selectShortcut(*shortcut_, menu.shortcut);
    negotiatePosition_->setCurrentIndex(menu.negotiatePosition);
    checked_->setChecked(menu.checked);
    enabled_->setChecked(menu.enabled);
    visible_->setChecked(menu.visible);
    windowList_->setChecked(menu.windowList);
}

void MenuFields::readInto(host::FormMenu& menu) const {
    bool isNumber = false;
    const int index = index_->text().toInt(&isNumber);
    menu.caption = text(caption_->text());
    menu.name = text(name_->text().trimmed());
    menu.index = isNumber ? std::optional(index) : std::nullopt;
    menu.helpContextId = helpContextId_->text().toInt();
    menu.shortcut = text(shortcut_->currentData().toString());
    if (negotiatePosition_->currentIndex() >= 0) menu.negotiatePosition = negotiatePosition_->currentIndex();
    menu.checked = checked_->isChecked();
    menu.enabled = enabled_->isChecked();
    menu.visible = visible_->isChecked();
    menu.windowList = windowList_->isChecked();
}

} // namespace workbench
