#include "Apps/workbench/messages_view.h"
#include "Apps/workbench/text.h"
#include <QApplication>
#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QStyle>
#include <QTreeView>
#include <array>

namespace workbench {

namespace {

using Document = fernwick::udocCompileMsgs;

constexpr std::array kHeaders{"FileName", "", "Name", "Line #", "Err #", "Message/Warning/Error"};
/// Percent of the width that the picture leaves.
constexpr std::array kPercent{0, 0, 10, 7, 7, 76};
constexpr int kPictureWidth = 32;

} // namespace

// ---- the rows ----------------------------------------------------------------------------------------------------------

int MessageRows::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int MessageRows::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(Document::kColumns); }

void MessageRows::reread() {
    beginResetModel();
    rows_ = document_->rowCount() - 1;
    endResetModel();
}

QVariant MessageRows::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1; // row 0 of the document is its header
    if (row >= document_->rowCount()) return {};
    const auto& shown = document_->message(row);
    switch (role) {
    case Qt::DisplayRole: return qt(shown.cells[std::size_t(index.column())]);
    case Qt::ToolTipRole: return qt(shown.cells[Document::FileNameColumn]);
    case Qt::TextAlignmentRole:
        return int(index.column() == Document::MessageColumn ? Qt::AlignLeft | Qt::AlignTop
                                                             : Qt::AlignHCenter | Qt::AlignTop);
    case Qt::DecorationRole:
        if (index.column() != Document::PictureColumn || shown.picture == 0) return {};
        return QApplication::style()->standardIcon(shown.picture == fernwick::ERROR_MSG ? QStyle::SP_MessageBoxCritical
                                                                                        : QStyle::SP_MessageBoxWarning);
    default: return {};
    }
}

QVariant MessageRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return QString(kHeaders.at(std::size_t(section)));
}

// ---- the window --------------------------------------------------------------------------------------------------------

MessagesView::MessagesView(basic::Ref<Document> document, Run run)
    : document_(std::move(document)), rows_(document_), grid_(new QTreeView), status_(new QLabel) {
    grid_->setObjectName("msgGrid");
    status_->setObjectName("lblStatusText");
    status_->setTextFormat(Qt::PlainText);
    grid_->setModel(&rows_);
    grid_->setRootIsDecorated(false);
    grid_->setWordWrap(true);
    grid_->setAlternatingRowColors(true);
    grid_->setColumnHidden(Document::FileNameColumn, true);
    grid_->header()->setMinimumSectionSize(1);
    auto bold = grid_->header()->font();
    bold.setBold(true);
    grid_->header()->setFont(bold);
    grid_->header()->setDefaultAlignment(Qt::AlignCenter);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 4);
    rows->addWidget(grid_);
    rows->addWidget(status_);
    status_->setContentsMargins(6, 0, 6, 0);

    redraw_.setSingleShot(true);
    redraw_.setInterval(0); // a build adds its messages one by one
    connect(&redraw_, &QTimer::timeout, this, [this] { draw(); });
    const auto soon = [this](const auto&...) { redraw_.start(); };
    watches_.push_back(document_->refreshed.connect(soon));
    watches_.push_back(document_->lblStatus.watch(soon));
    watches_.push_back(document_->lblStatusText.watch(soon));
    connect(grid_, &QTreeView::activated, this,
            [this, run](const QModelIndex& index) { run([&] { document_->gotoMessage(index.row() + 1); }); });
    draw();
}

void MessagesView::draw() {
    rows_.reread();
    status_->setText(qt(document_->lblStatus() + " " + document_->lblStatusText()));
    drawn();
}

void MessagesView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    setWidths();
}

void MessagesView::setWidths() {
    const int rest = grid_->viewport()->width() - kPictureWidth;
    grid_->setColumnWidth(Document::PictureColumn, kPictureWidth);
    for (int column = Document::TitleColumn; column < Document::MessageColumn; ++column)
        grid_->setColumnWidth(
            column, std::max(grid_->header()->sectionSizeHint(column), rest * kPercent.at(std::size_t(column)) / 100));
}

} // namespace workbench
