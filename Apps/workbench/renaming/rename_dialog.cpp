#include "Apps/workbench/renaming/rename_dialog.h"
#include "Apps/workbench/assist/shown_names.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/theme.h"
#include "Apps/workbench/renaming/renaming_texts.h"
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>

namespace workbench {

namespace {

constexpr int kWidth = 620, kHeight = 420, kFileWidth = 180, kLineWidth = 60;
namespace texts = renaming_texts;

QLabel* plainLabel(const char* name) {
    auto* const label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

/// A group of lines, one row for each.
void addGroup(QTreeWidget& tree, const char* title, const ProjectInsight::Program& program,
              const std::vector<qltoolkit::Reference>& names) {
    if (names.empty()) return;
    auto* const group = new QTreeWidgetItem(&tree);
    const ShownName* last = nullptr;
    const auto shown = shownNames(program.input, names);
    for (const auto& name : shown) {
        const bool isSame = last && last->source == name.source && last->line == name.line;
        last = &name;
        if (isSame) continue;
        auto* const row = new QTreeWidgetItem(group);
        row->setText(0, qt(program.components[name.source]->Name()));
        row->setText(1, QString::number(name.line + 1));
        row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        row->setText(2, name.text.trimmed());
    }
    group->setText(0, QString(title).arg(group->childCount()));
    group->setFirstColumnSpanned(true);
    group->setExpanded(true);
}

} // namespace

RenameDialog::RenameDialog(ProjectInsight& insight, ProjectInsight::Program program, qltoolkit::NamePlace place,
                           Apply apply, QWidget* parent)
    : QDialog(parent),
      program_(std::move(program)),
      apply_(std::move(apply)),
      label_(new QLabel),
      status_(plainLabel("status")),
      problem_(plainLabel("problem")),
      name_(new QLineEdit),
      places_(new QTreeWidget),
      progress_(new QProgressBar),
      rename_(new QPushButton("&Rename")),
      task_(insight.workers()) {
    setWindowTitle(texts::kTitle);
    build();
    resize(kWidth, kHeight);
    prepare(place);
}

void RenameDialog::build() {
    name_->setObjectName("newName");
    label_->setBuddy(name_);
    places_->setObjectName("places");
    places_->setAccessibleName("What changes");
    places_->setHeaderLabels({"Module", "Line", "Text"});
    places_->setAllColumnsShowFocus(true);
    places_->header()->resizeSection(0, kFileWidth);
    places_->header()->resizeSection(1, kLineWidth);
    progress_->setAccessibleName("Progress");
    auto warning = problem_->palette();
    warning.setColor(QPalette::WindowText, codeColours(currentTheme()).error);
    problem_->setPalette(warning);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(rename_, QDialogButtonBox::AcceptRole);
    rename_->setObjectName("rename");
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(label_);
    rows->addWidget(name_);
    rows->addWidget(places_, 1);
    rows->addWidget(status_);
    rows->addWidget(progress_);
    rows->addWidget(problem_);
    rows->addWidget(buttons);
    rename_->setDefault(true); // in the dialog
    connect(name_, &QLineEdit::textChanged, this, [this] {
        problem_->setVisible(!renaming_->refusal.empty());
        updateButton();
    });
    connect(buttons, &QDialogButtonBox::accepted, this, &RenameDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    task_.progress = [this](int done, int all) {
        progress_->setRange(0, all);
        progress_->setValue(done);
    };
}

void RenameDialog::prepare(qltoolkit::NamePlace place) {
    const auto name = qt(qltoolkit::nameAround(*program_.input.sources[place.source], place.pos));
    label_->setText(QString(texts::kLabel).arg(name));
    name_->setText(name);
    name_->selectAll();
    name_->setFocus();
    begin(texts::kReading);
    const auto made = renaming_;
    task_.start(
        [made, input = program_.input, place](const auto& following) {
            *made = qltoolkit::renamingAt(input, place.source, place.pos, following);
        },
        [this] {
            finish();
            if (!renaming_->refusal.empty()) refuse(qt(renaming_->refusal));
            showPlaces();
        });
}

void RenameDialog::showPlaces() {
    addGroup(*places_, texts::kChanged, program_, renaming_->places);
    addGroup(*places_, texts::kUnknown, program_, renaming_->unknown);
    updateButton();
}

void RenameDialog::accept() {
    if (!rename_->isEnabled()) return;
    begin(texts::kChecking);
    const auto newName = text(name_->text());
    const auto why = std::make_shared<std::string>();
    task_.start([why, newName, input = program_.input, renaming = *renaming_](
                    const auto& following) { *why = qltoolkit::refusalOf(input, renaming, newName, following); },
                [this, why, newName] {
                    finish();
                    const auto problem = why->empty() ? apply_(*renaming_, newName) : qt(*why);
                    problem.isEmpty() ? QDialog::accept() : refuse(problem);
                });
}

void RenameDialog::begin(const char* text) {
    problem_->hide();
    status_->setText(text);
    progress_->setRange(0, 0);
    status_->show();
    progress_->show();
    updateButton();
    rename_->setEnabled(false);
}

void RenameDialog::finish() {
    status_->hide();
    progress_->hide();
    updateButton();
}

void RenameDialog::refuse(const QString& why) {
    problem_->setText(why);
    problem_->show();
    name_->setFocus();
}

void RenameDialog::updateButton() {
    const bool isNew = !name_->text().isEmpty() && text(name_->text()) != renaming_->name;
    rename_->setEnabled(isNew && !isBusy() && !renaming_->places.empty());
}

} // namespace workbench
