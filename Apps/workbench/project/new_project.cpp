#include "Apps/workbench/project/new_project.h"
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/base/text.h"
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace workbench {

namespace {

constexpr auto kStandardKind = "Standard EXE", kUsualKind = "Fernwick Project";
constexpr int kPictureSize = 32, kDialogWidth = 340, kDialogHeight = 240;

} // namespace

std::vector<ProjectKind> projectKinds(const std::string& templateFolder) {
    std::vector<ProjectKind> kinds{{kStandardKind, ""}};
    const QDir folder(qt(templateFolder) + "/Projects");
    for (const auto& file : folder.entryInfoList({"*.vbp"}, QDir::Files, QDir::Name | QDir::IgnoreCase))
        kinds.push_back({text(file.completeBaseName()), text(file.filePath())});
    return kinds;
}

NewProjectDialog::NewProjectDialog(std::vector<ProjectKind> kinds, QWidget* parent)
    : QDialog(parent), kinds_(std::move(kinds)), list_(new QListWidget) {
    setWindowTitle("New Project");
    list_->setObjectName("kinds");
    list_->setAccessibleName("Kinds of projects");
    list_->setIconSize({kPictureSize, kPictureSize});
    for (const auto& kind : kinds_) {
        list_->addItem(new QListWidgetItem(drawnIcon(kind.path.empty() ? "New" : "Project"), qt(kind.name)));
        if (kind.name == kUsualKind) list_->setCurrentRow(list_->count() - 1);
    }
    if (list_->currentRow() < 0) list_->setCurrentRow(0);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(list_, &QListWidget::itemActivated, this, &QDialog::accept);
    auto* const label = new QLabel("&Kind of project:");
    label->setBuddy(list_);
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(label);
    rows->addWidget(list_);
    rows->addWidget(buttons);
    resize(kDialogWidth, kDialogHeight);
}

const ProjectKind& NewProjectDialog::chosen() const { return kinds_[std::size_t(std::max(0, list_->currentRow()))]; }

std::optional<ProjectKind> askForProjectKind(const std::string& templateFolder, QWidget* parent) {
    auto kinds = projectKinds(templateFolder);
    if (kinds.size() == 1) return kinds.front();
    NewProjectDialog dialog(std::move(kinds), parent);
    if (dialog.exec() != QDialog::Accepted) return {};
    return dialog.chosen();
}

} // namespace workbench
