#include "Apps/workbench/options/options_dialog.h"
#include "Apps/workbench/options/colours_page.h"
#include "Apps/workbench/options/designer_page.h"
#include "Apps/workbench/options/editor_page.h"
#include "Apps/workbench/options/keys_page.h"
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace workbench {

namespace {

constexpr int kWidth = 620, kHeight = 520;

struct OptionsButton {
    QDialogButtonBox::StandardButton button;
    const char *name, *text;
};
constexpr OptionsButton kOptionsButtons[] = {
    {QDialogButtonBox::Ok, "ok", "&OK"},
    {QDialogButtonBox::Cancel, "cancel", "&Cancel"},
    {QDialogButtonBox::Apply, "apply", "&Apply"},
    {QDialogButtonBox::RestoreDefaults, "defaults", "Defa&ults"},
};

} // namespace

OptionsDialog::OptionsDialog(std::vector<KeyOption> keys, std::function<void()> applied, QWidget* parent)
    : QDialog(parent),
      applied_(std::move(applied)),
      tabs_(new QTabWidget),
      problem_(new QLabel),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply |
                                    QDialogButtonBox::RestoreDefaults)),
      colours_(new ColoursPage) {
    setWindowTitle("Options");
    tabs_->setObjectName("pages");
    tabs_->setAccessibleName("Pages");
    problem_->setObjectName("problem");
    problem_->setWordWrap(true);
    addPage(*new EditorPage, "&Editor");
    addPage(*colours_, "Co&lours");
    addPage(*new DesignerPage, "&Designer");
    addPage(*new KeysPage(std::move(keys)), "&Keys");
    addButtons();
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(tabs_);
    rows->addWidget(problem_);
    rows->addWidget(buttons_);
    enableButtons();
    resize(QSize(kWidth, kHeight).expandedTo(sizeHint()));
}

void OptionsDialog::addPage(OptionsPage& page, const QString& title) {
    tabs_->addTab(&page, title);
    pages_.push_back(&page);
    page.showStored();
    page.changed = [this] { changed(); };
}

void OptionsDialog::addButtons() {
    for (const auto& [button, name, text] : kOptionsButtons) {
        buttons_->button(button)->setObjectName(name);
        buttons_->button(button)->setText(text);
    }
    auto* const defaults = buttons_->button(QDialogButtonBox::RestoreDefaults);
    defaults->setToolTip("Shows the usual values of this page");
    connect(defaults, &QPushButton::clicked, this, [this] {
        pageInFront().showUsual();
        changed();
    });
    connect(buttons_->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, [this] { apply(); });
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons_, &QDialogButtonBox::accepted, this, [this] {
        apply();
        accept();
    });
}

OptionsPage& OptionsDialog::pageInFront() const { return *pages_[std::size_t(tabs_->currentIndex())]; }

void OptionsDialog::changed() {
    isChanged_ = true;
    enableButtons();
}

void OptionsDialog::enableButtons() {
    QString problem;
    for (const auto* page : pages_)
        if (problem.isEmpty()) problem = page->problem();
    problem_->setText(problem);
    problem_->setVisible(!problem.isEmpty());
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty());
    buttons_->button(QDialogButtonBox::Apply)->setEnabled(problem.isEmpty() && isChanged_);
}

void OptionsDialog::apply() {
    if (!isChanged_) return;
    for (const auto* page : pages_) page->store();
    isChanged_ = false;
    enableButtons();
    applied_();
}

} // namespace workbench
