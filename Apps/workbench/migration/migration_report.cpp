#include "Apps/workbench/migration/migration_report.h"
#include "Apps/common/machine.h"
#include "Apps/common/migration_text.h"
#include "Apps/workbench/base/message_box.h"
#include "Apps/workbench/base/text.h"
#include "Host/system/environment.h"
#include <QBoxLayout>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kWidth = 940, kHeight = 520, kMostWidth = 300;
/// More places are shown in closed groups.
constexpr std::size_t kMostOpen = 200;
constexpr int kIndexRole = Qt::UserRole;

QPushButton* button(const char* name, const char* caption) {
    auto* const made = new QPushButton(caption);
    made->setObjectName(name);
    made->setAutoDefault(false); // Enter goes to the place
    return made;
}

QString placeOf(const apps::Migration& found, const apps::Hindrance& each) {
    return QString("%1:%2").arg(qt(apps::shortPath(found, each.file))).arg(each.line);
}

} // namespace

MigrationReport::MigrationReport(apps::CheckedProject project, const std::string& device, Show show, QWidget* parent)
    : QDialog(parent),
      project_(std::move(project)),
      show_(std::move(show)),
      installation_(apps::findInstallation(host::Environment{})),
      targets_(installation_),
      devices_(new QComboBox),
      summary_(new QLabel),
      progress_(new QProgressBar),
      stop_(button("stopMigration", "S&top")),
      copy_(button("copyMigration", "&Copy")),
      save_(button("saveMigration", "&Save As...")),
      tree_(new QTreeWidget),
      run_({[this](int done, int all) {
                progress_->setRange(0, all);
                progress_->setValue(done);
            },
            [this](const apps::Migration& found) { list(found); },
            [this](const std::string& why) {
                showRunning(false);
                summary_->setText(qt(why));
            }}) {
    setWindowTitle(QString("Migration Report - %1").arg(qt(project_.name)));
    build();
    offerDevices(device);
    resize(kWidth, kHeight);
    connect(devices_, &QComboBox::currentIndexChanged, this, [this] { search(); });
    search();
}

void MigrationReport::build() {
    devices_->setObjectName("migrationDevice");
    summary_->setObjectName("migrationSummary");
    summary_->setTextFormat(Qt::PlainText);
    summary_->setWordWrap(true);
    progress_->setAccessibleName("Files read");
    tree_->setObjectName("migrationPlaces");
    tree_->setAccessibleName("What hinders the project");
    tree_->setHeaderLabels({"What", "Where", "What to use instead"});
    tree_->setUniformRowHeights(true);
    auto* const caption = new QLabel("&Device:");
    caption->setBuddy(devices_);
    auto* const top = new QHBoxLayout;
    top->addWidget(caption);
    top->addWidget(devices_);
    top->addStretch(1);
    top->addWidget(progress_);
    top->addWidget(stop_);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->addButton(copy_, QDialogButtonBox::ActionRole);
    buttons->addButton(save_, QDialogButtonBox::ActionRole);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(top);
    rows->addWidget(summary_);
    rows->addWidget(tree_, 1);
    rows->addWidget(buttons);
    tree_->setFocus();
    connect(tree_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) { choose(item); });
    connect(stop_, &QPushButton::clicked, this, [this] { stop(); });
    connect(copy_, &QPushButton::clicked, this, [this] { copy(); });
    connect(save_, &QPushButton::clicked, this, [this] { save(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void MigrationReport::offerDevices(const std::string& device) {
    const QSignalBlocker quiet(devices_);
    targets_.Initialize();
    for (std::int32_t i = 0; i < targets_.Count(); ++i) {
        const auto target = targets_.GetDesignTargetByIndex(std::int16_t(i));
        if (target->PlatformName().empty()) continue;
        devices_->addItem(qt(target->Name()).remove('&'), qt(target->Key()));
    }
    devices_->setCurrentIndex(std::max(0, devices_->findData(qt(device), Qt::UserRole, Qt::MatchFixedString)));
}

void MigrationReport::search() {
    tree_->clear();
    found_ = {};
    basic::Ref<designtargetaccess::IQLDesignTarget> target;
    if (!targets_.GetDesignTarget(text(devices_->currentData().toString()), target)) {
        showRunning(false);
        return summary_->setText("No design target is installed.");
    }
    summary_->setText(QString("Reading %1...").arg(qt(project_.name)));
    showRunning(true);
    run_.start(project_, apps::MigrationDevice{*target.shared(), project_}, installation_);
}

void MigrationReport::stop() {
    run_.stop();
    showRunning(false);
    summary_->setText("Stopped. Choose a device to start again.");
}

void MigrationReport::showRunning(bool isRunning) {
    const bool hadKeys = stop_->hasFocus();
    progress_->setVisible(isRunning);
    stop_->setVisible(isRunning);
    copy_->setEnabled(!found_.project.empty());
    save_->setEnabled(!found_.project.empty());
    if (hadKeys && !isRunning) tree_->setFocus();
}

void MigrationReport::list(const apps::Migration& found) {
    found_ = found;
    showRunning(false);
    auto summary = qt(apps::summaryOf(found));
    if (!found.errors.empty()) summary += ". The check found errors, so the code may contain further places";
    summary_->setText(summary + ".");
    QTreeWidgetItem* group = nullptr;
    auto headingFont = tree_->font();
    headingFont.setBold(true);
    for (std::size_t i = 0; i < found_.hindrances.size(); ++i) {
        const auto& each = found_.hindrances[i];
        if (i == 0 || found_.hindrances[i - 1].kind != each.kind) {
            const auto heading = apps::headingOf(each.kind);
            group = new QTreeWidgetItem(tree_,
                                        {QString("%1: %2").arg(qt(std::string(heading))).arg(found_.count(each.kind))});
            group->setFirstColumnSpanned(true);
            group->setFont(0, headingFont);
            group->setExpanded(found_.hindrances.size() <= kMostOpen);
        }
        auto* const item = new QTreeWidgetItem(group, {qt(each.name), placeOf(found_, each), qt(each.instead)});
        for (int column = 0; column < tree_->columnCount(); ++column) item->setToolTip(column, item->text(column));
        item->setData(0, kIndexRole, int(i));
    }
    fitColumns();
    tree_->setCurrentItem(tree_->topLevelItem(0));
}

/// The last column, with the longest texts, gets what the others leave.
void MigrationReport::fitColumns() {
    for (int column = 0; column + 1 < tree_->columnCount(); ++column) {
        tree_->resizeColumnToContents(column);
        tree_->setColumnWidth(column, std::min(tree_->columnWidth(column), kMostWidth));
    }
}

void MigrationReport::choose(const QTreeWidgetItem* item) {
    const auto index = item->data(0, kIndexRole);
    if (index.isValid()) show_(found_.hindrances[std::size_t(index.toInt())]);
}

void MigrationReport::copy() { QGuiApplication::clipboard()->setText(qt(apps::textOf(found_))); }

void MigrationReport::save() {
    const auto path = QFileDialog::getSaveFileName(this, "Save Migration Report", "Migration.txt", "Text (*.txt)");
    if (path.isEmpty()) return;
    QSaveFile file(path);
    const auto bytes = QByteArray::fromStdString(apps::textOf(found_));
    const bool isSaved = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (!isSaved) showBox(this, QMessageBox::Warning, QString("%1: %2").arg(path, file.errorString()));
}

void MigrationReport::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && stop_->isVisible()) return stop();
    QDialog::keyPressEvent(event);
}

} // namespace workbench
