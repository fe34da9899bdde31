#include "Apps/workbench/references/libraries_dialog.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/theme.h"
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kWidth = 520, kHeight = 420;
constexpr auto kMissing = "MISSING: %1";
constexpr auto kInUse = "\"%1\" has controls of this library. Remove them first.";

QLabel* detailsLabel(const char* name) {
    auto* const label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPushButton* sideButton(const char* name, const char* caption) {
    auto* const button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

} // namespace

LibrariesDialog::LibrariesDialog(basic::Ref<host::Project> project, LibraryKind kind, QWidget* parent)
    : QDialog(parent),
      project_(std::move(project)),
      kind_(kind),
      rows_(libraryRows(*project_.shared(), kind)),
      list_(new QListWidget),
      details_(detailsLabel("details")),
      problem_(detailsLabel("problem")),
      up_(sideButton("up", "Move &Up")),
      down_(sideButton("down", "Move &Down")),
      browse_(sideButton("browse", "&Browse...")) {
    const auto what = kind == LibraryKind::References ? "References" : "Components";
    setWindowTitle(QString("%1 - %2").arg(what, qt(project_->Name())));
    list_->setObjectName("libraries");
    list_->setAccessibleName(what);
    build();
    listRows();
    list_->setCurrentRow(0);
    resize(kWidth, kHeight);
}

void LibrariesDialog::build() {
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* const side = new QVBoxLayout;
    for (auto* button : {up_, down_, browse_}) side->addWidget(button);
    side->addStretch(1);
    for (auto* button : {up_, down_}) button->setVisible(kind_ == LibraryKind::References);
    auto* const top = new QHBoxLayout;
    top->addWidget(list_, 1);
    top->addLayout(side);
    auto* const whole = new QVBoxLayout(this);
    whole->addLayout(top, 1);
    whole->addWidget(details_);
    whole->addWidget(problem_);
    whole->addWidget(buttons);
    auto warning = problem_->palette();
    warning.setColor(QPalette::WindowText, codeColours(currentTheme()).error);
    problem_->setPalette(warning);
    problem_->hide();
    connect(list_, &QListWidget::currentRowChanged, this, [this] { showDetails(); });
    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) { tick(item); });
    connect(up_, &QPushButton::clicked, this, [this] { move(-1); });
    connect(down_, &QPushButton::clicked, this, [this] { move(+1); });
    connect(browse_, &QPushButton::clicked, this, [this] { browse(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void LibrariesDialog::listRows() {
    listing_ = true;
    list_->clear();
    for (const auto& row : rows_) {
        const auto text = qt(row.text);
        auto* const item = new QListWidgetItem(row.isMissing ? QString(kMissing).arg(text) : text, list_);
        item->setFlags(row.isFixed ? Qt::ItemIsEnabled | Qt::ItemIsSelectable
                                   : Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(row.isTicked ? Qt::Checked : Qt::Unchecked);
    }
    listing_ = false;
}

bool LibrariesDialog::canMove(int row, int by) const {
    const auto isMovable = [this](int index) {
        return index >= 0 && index < int(rows_.size()) && rows_[std::size_t(index)].isTicked &&
               !rows_[std::size_t(index)].isFixed;
    };
    return isMovable(row) && isMovable(row + by);
}

void LibrariesDialog::showDetails() {
    const int row = list_->currentRow();
    up_->setEnabled(canMove(row, -1));
    down_->setEnabled(canMove(row, +1));
    details_->setText(row < 0 ? QString() : "Location: " + qt(rows_[std::size_t(row)].path));
}

void LibrariesDialog::tick(QListWidgetItem* item) {
    if (listing_) return;
    auto& row = rows_[std::size_t(list_->row(item))];
    const bool isTicked = item->checkState() == Qt::Checked;
    const auto user = isTicked || kind_ == LibraryKind::References ? std::string() : userOf(*project_.shared(), row);
    problem_->setVisible(!user.empty());
    problem_->setText(QString(kInUse).arg(qt(user)));
    if (user.empty()) {
        row.isTicked = isTicked;
    } else {
        const QSignalBlocker ours(list_);
        item->setCheckState(Qt::Checked);
    }
    showDetails();
}

void LibrariesDialog::move(int by) {
    const int row = list_->currentRow();
    if (!canMove(row, by)) return;
    std::swap(rows_[std::size_t(row)], rows_[std::size_t(row + by)]);
    listRows();
    list_->setCurrentRow(row + by);
}

void LibrariesDialog::browse() {
    const auto filter = kind_ == LibraryKind::References
                            ? "Libraries and projects (*.dll *.tlb *.olb *.exe *.ocx *.vbp);;All files (*)"
                            : "Controls (*.ocx *.dll);;All files (*)";
    const auto path = QFileDialog::getOpenFileName(this, windowTitle(), {}, filter);
    if (!path.isEmpty()) addFile(path);
}

void LibrariesDialog::addFile(const QString& path) {
    LibraryRow row;
    row.text = text(QFileInfo(path).fileName());
    row.path = text(path);
    row.isTicked = true;
    const auto after = std::find_if(rows_.rbegin(), rows_.rend(), [](const auto& one) { return one.isTicked; }).base();
    const auto added = rows_.insert(after, std::move(row)) - rows_.begin();
    listRows();
    list_->setCurrentRow(int(added));
}

void editLibraries(const vbide::Ref<vbide::VBProject>& project, LibraryKind kind, QWidget* parent, const Run& run) {
    const auto own = basic::cast<host::Project>(project);
    if (!own) return;
    LibrariesDialog dialog(own, kind, parent);
    if (dialog.exec() == QDialog::Accepted) run([&] { applyRows(*own.shared(), kind, dialog.rows()); });
}

} // namespace workbench
