#include "Apps/workbench/project/project_properties.h"
#include "Apps/workbench/base/text.h"
#include "Host/files/project_code_page.h"
#include "Host/model/project.h"
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
      startUp_(new QComboBox),
      codePage_(new QComboBox) {
    setWindowTitle(qt(project_->Name()) + " - Project Properties");
    name_->setObjectName("name");
    startUp_->setObjectName("startUp");
    listStartUps();
    codePage_->setObjectName("codePage");
    listCodePages();
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
    rows->addRow("&Code page:", codePage_);
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

/// The first entry, without a number, has the page detected.
void ProjectProperties::listCodePages() {
    const auto own = basic::cast<host::Project>(project_);
    codePage_->setEnabled(bool(own));
    codePage_->addItem("Detected automatically");
    for (const auto& page : basic::CodePage::all())
        codePage_->addItem(QString("%1 (%2)").arg(page.number).arg(page.languages), page.number);
    if (!own) return;
    const auto& detected = own->codePage();
    const auto reason = host::textOf(detected.reason);
    if (detected.reason == basic::CodePageReason::Key)
        codePage_->setCurrentIndex(codePage_->findData(detected.page.number()));
    else
        codePage_->setItemText(0, QString("Detected: %1, %2")
                                      .arg(detected.page.number())
                                      .arg(QString::fromUtf8(reason.data(), int(reason.size()))));
}

void ProjectProperties::setCodePage() {
    const auto own = basic::cast<host::Project>(project_);
    if (!own) return;
    const auto chosen = codePage_->currentData();
    const bool stored = own->codePage().reason == basic::CodePageReason::Key;
    const auto page = chosen.isValid() ? std::optional(chosen.toInt()) : std::nullopt;
    const bool same = page ? stored && own->codePage().page.number() == *page : !stored;
    if (!same) own->codePage(page);
}

void ProjectProperties::setChanged() {
    const auto name = text(name_->text());
    if (name != project_->Name()) project_->Name(name);
    if (startUp_->currentIndex() != startedWith_)
        project_->VBComponents()->StartUpObject(startUps_[std::size_t(startUp_->currentIndex())]);
    setCodePage();
}

void editProperties(const vbide::Ref<vbide::VBProject>& project, QWidget* parent) {
    ProjectProperties dialog(project, parent);
    if (dialog.exec() == QDialog::Accepted) dialog.setChanged();
}

} // namespace workbench
