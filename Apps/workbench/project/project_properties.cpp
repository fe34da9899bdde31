#include "Apps/workbench/project/project_properties.h"
#include "Apps/workbench/base/text.h"
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>

namespace workbench {

namespace {

bool canStart(vbide::vbext_ComponentType type) {
    return type == vbide::vbext_ct_VBForm || type == vbide::vbext_ct_VBMDIForm;
}

} // namespace

ProjectProperties::ProjectProperties(vbide::Ref<vbide::VBProject> project, QWidget* parent)
    : QDialog(parent),
      project_(std::move(project)),
      name_(new QLineEdit(qt(project_->Name()))),
      startUp_(new QComboBox) {
    setWindowTitle(qt(project_->Name()) + " - Project Properties");
    name_->setObjectName("name");
    startUp_->setObjectName("startUp");
    listStartUps();
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    // the language's rule for names
    static const QRegularExpression kName("\\p{L}[\\p{L}\\p{N}_]{0,39}");
    name_->setValidator(new QRegularExpressionValidator(kName, name_));
    connect(name_, &QLineEdit::textChanged, this,
            [this, ok = buttons->button(QDialogButtonBox::Ok)] { ok->setEnabled(name_->hasAcceptableInput()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const rows = new QFormLayout(this);
    rows->addRow("Project &name:", name_);
    rows->addRow("&Start with:", startUp_);
    rows->addRow(buttons);
    constexpr int kTitleButtons = 120;
    setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle()) + kTitleButtons);
}

void ProjectProperties::listStartUps() {
    const auto add = [this](const QString& name, const vbide::StartUp& startUp) {
        startUp_->addItem(name);
        startUps_.push_back(startUp);
    };
    const auto current = project_->VBComponents()->StartUpObject();
    add("(None)", {});
    add("Sub Main", {true, nullptr});
    startedWith_ = current.isSubMain;
    for (const auto& component : project_->VBComponents()->items()) {
        if (!canStart(component->Type())) continue;
        if (component == current.component) startedWith_ = startUp_->count();
        add(qt(component->Name()), {false, component});
    }
    startUp_->setCurrentIndex(startedWith_);
}

void ProjectProperties::setChanged() {
    const auto name = text(name_->text());
    if (name != project_->Name()) project_->Name(name);
    if (startUp_->currentIndex() != startedWith_)
        project_->VBComponents()->StartUpObject(startUps_[std::size_t(startUp_->currentIndex())]);
}

void editProperties(const vbide::Ref<vbide::VBProject>& project, QWidget* parent) {
    ProjectProperties dialog(project, parent);
    if (dialog.exec() == QDialog::Accepted) dialog.setChanged();
}

} // namespace workbench
