#include "Apps/workbench/menu_editor/menu_editor.h"
#include "Apps/workbench/base/message_box.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/menu_editor/menu_fields.h"
#include "Apps/workbench/menu_editor/menu_list.h"
#include "Basic/runtime_error.h"
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>

namespace workbench {

namespace {

constexpr QSize kUsualSize{520, 480};

QToolButton* arrow(Qt::ArrowType type, const QString& name, Qt::Key key) {
    auto* const button = new QToolButton;
    button->setArrowType(type);
    button->setAccessibleName(name);
    button->setShortcut(Qt::ALT | key);
    button->setToolTip(QString("%1 (%2)").arg(name, button->shortcut().toString(QKeySequence::NativeText)));
    button->setFocusPolicy(Qt::NoFocus); // the field keeps the focus
    return button;
}

} // namespace

MenuEditor::MenuEditor(DesignHistory& history, vbide::Ref<vbide::VBComponent> component, QWidget* parent)
    : QDialog(parent),
      history_(history),
      component_(std::move(component)),
      before_(host::menusOf(component_->Designer())),
      rows_(before_),
      fields_(new MenuFields),
      list_(new QListWidget) {
    setObjectName("menuEditor");
    setWindowTitle("Menu Editor - " + qt(component_->Name()));
    list_->setObjectName("menus");
    list_->setAccessibleName("Menus");
    list_->setItemDelegate(new MenuListDelegate(list_));
    auto* const top = new QHBoxLayout;
    top->addWidget(fields_, 1);
    top->addWidget(buttons());
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(moves());
    layout->addWidget(list_, 1);
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) { showRow(std::size_t(std::max(row, 0))); });
    fields_->edited = [this] {
        fields_->readInto(rows_.at(current()));
        list_->item(int(current()))->setText(rows_.shown(current()));
    };
    list();
    showRow(0);
    resize(kUsualSize);
    fields_->caption().setFocus();
}

QWidget* MenuEditor::buttons() {
    auto* const box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Vertical);
    box->button(QDialogButtonBox::Ok)->setText("OK");
    box->button(QDialogButtonBox::Ok)->setAutoDefault(false);
    box->button(QDialogButtonBox::Cancel)->setText("Cancel");
    box->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return box;
}

/// Enter goes to the next menu, so that many are typed one after another.
QWidget* MenuEditor::moves() {
    auto* const bar = new QWidget;
    auto* const layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](QAbstractButton* button, const char* name, auto act) {
        button->setObjectName(name);
        connect(button, &QAbstractButton::clicked, this, act);
        layout->addWidget(button);
    };
    add(arrow(Qt::LeftArrow, "One level up", Qt::Key_L), "outdent", [this] { changeLevel(&MenuRows::outdent); });
    add(arrow(Qt::RightArrow, "One level down", Qt::Key_R), "indent", [this] { changeLevel(&MenuRows::indent); });
    add(arrow(Qt::UpArrow, "Move up", Qt::Key_U), "up", [this] { change(&MenuRows::moveUp); });
    add(arrow(Qt::DownArrow, "Move down", Qt::Key_B), "down", [this] { change(&MenuRows::moveDown); });
    layout->addSpacing(16);
    auto* const next = new QPushButton("&Next");
    next->setDefault(true);
    add(next, "next", [this] { this->next(); });
    const auto plain = [](const char* text) {
        auto* const button = new QPushButton(text);
        button->setAutoDefault(false);
        return button;
    };
    add(plain("&Insert"), "insert", [this] {
        change(&MenuRows::insertBefore);
        fields_->caption().setFocus();
    });
    add(plain("Dele&te"), "delete", [this] { change(&MenuRows::remove); });
    layout->addStretch();
    return bar;
}

std::size_t MenuEditor::current() const { return std::size_t(std::max(list_->currentRow(), 0)); }

void MenuEditor::list() {
    const QSignalBlocker ours(list_);
    const int row = list_->currentRow();
    list_->clear();
    for (std::size_t i = 0; i < rows_.count(); ++i) list_->addItem(rows_.shown(i));
    list_->setCurrentRow(std::clamp(row, 0, list_->count() - 1));
}

void MenuEditor::showRow(std::size_t row) {
    const QSignalBlocker ours(list_);
    list_->setCurrentRow(int(row));
    fields_->show(rows_.at(row));
}

void MenuEditor::change(std::size_t (MenuRows::*act)(std::size_t)) {
    const auto row = (rows_.*act)(current());
    list();
    showRow(row);
}

void MenuEditor::changeLevel(void (MenuRows::*act)(std::size_t)) {
    (rows_.*act)(current());
    list();
}

void MenuEditor::next() {
    change(&MenuRows::next);
    fields_->caption().setFocus();
    fields_->caption().selectAll();
}

void MenuEditor::accept() {
    const auto menus = rows_.menus();
    if (const auto problem = host::problemOf(component_->Designer(), menus)) {
        showRow(rows_.rowOf(problem->menu));
        showBox(this, QMessageBox::Warning, qt(problem->text));
        fields_->name().setFocus();
        return;
    }
    if (menus == before_ || write(menus)) QDialog::accept();
}

bool MenuEditor::write(const std::vector<host::FormMenu>& menus) {
    const auto failed = basic::attempt(
        [&] { history_.record(component_, "Edit Menus", [&] { host::setMenus(component_->Designer(), menus); }); });
    if (failed.Number != 0) showBox(this, QMessageBox::Warning, qt(failed.Description));
    return failed.Number == 0;
}

void editMenus(DesignHistory& history, const vbide::Ref<vbide::VBComponent>& component, QWidget* parent) {
    MenuEditor(history, component, parent).exec();
}

} // namespace workbench
