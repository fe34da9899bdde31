#include "Apps/workbench/unsaved/outside_box.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/title.h"
#include "Apps/workbench/unsaved/unsaved_texts.h"
#include <QBoxLayout>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace workbench {

namespace {

constexpr int kBoxWidth = 520, kBoxHeight = 300;

QString lineOf(const OutsideChange& change) {
    const auto file = QFileInfo(qt(change.path)).fileName();
    const auto name = change.component ? QString("%1 (%2)").arg(qt(change.component->Name()), file) : file;
    if (!change.digest) return QString(unsaved_texts::kOutsideRemoved).arg(name);
    if (!change.component)
        return QString(change.changedHere ? unsaved_texts::kOutsideProjectChangedHere : unsaved_texts::kOutsideProject)
            .arg(name);
    return change.changedHere ? QString(unsaved_texts::kOutsideChangedHere).arg(name) : name;
}

QListWidget* listOf(const std::vector<OutsideChange>& changes) {
    auto* const list = new QListWidget;
    list->setObjectName("outsideFiles");
    list->setAccessibleName("Changed files");
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setWordWrap(true);
    for (const auto& change : changes) {
        auto* const item = new QListWidgetItem(lineOf(change), list);
        item->setToolTip(qt(change.path));
        if (change.digest) item->setCheckState(change.changedHere ? Qt::Unchecked : Qt::Checked);
    }
    return list;
}

QLabel* labelOf(const char* text) {
    auto* const label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

} // namespace

std::set<std::size_t> askWhatToReload(const std::vector<OutsideChange>& changes, QWidget* parent) {
    bool canReload = false;
    for (const auto& change : changes) canReload = canReload || change.digest;
    QDialog box(parent);
    box.setObjectName("outsideBox");
    box.setWindowTitle(kTitle);
    box.resize(kBoxWidth, kBoxHeight);
    auto* const list = listOf(changes);
    auto* const buttons = new QDialogButtonBox;
    if (canReload)
        buttons->addButton(unsaved_texts::kOutsideReload, QDialogButtonBox::AcceptRole)->setObjectName("reload");
    auto* const keep = buttons->addButton(canReload ? unsaved_texts::kOutsideKeep : unsaved_texts::kOutsideOk,
                                          QDialogButtonBox::RejectRole);
    keep->setObjectName("keep");
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
    auto* const rows = new QVBoxLayout(&box);
    rows->addWidget(labelOf(canReload ? unsaved_texts::kOutsideChanged : unsaved_texts::kOutsideGone));
    rows->addWidget(list);
    rows->addWidget(labelOf(canReload ? unsaved_texts::kWhatHappens : unsaved_texts::kWrittenAgain));
    rows->addWidget(buttons);

    std::set<std::size_t> wanted;
    if (box.exec() != QDialog::Accepted) return wanted;
    for (int row = 0; row < list->count(); ++row)
        if (list->item(row)->checkState() == Qt::Checked) wanted.insert(std::size_t(row));
    return wanted;
}

} // namespace workbench
