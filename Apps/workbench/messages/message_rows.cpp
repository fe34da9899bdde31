#include "Apps/workbench/messages/message_rows.h"
#include "Apps/workbench/base/pictures.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/twips.h"
#include <QApplication>
#include <QFont>
#include <QStyle>

namespace workbench {

namespace {

using Grid = fernwick::MessageGrid;

int qtAlignment(fernwick::FlexAlignment alignment) {
    switch (alignment) {
    case fernwick::flexAlignCenterTop: return int(Qt::AlignHCenter | Qt::AlignTop);
    case fernwick::flexAlignCenterCenter: return int(Qt::AlignCenter);
    default: return int(Qt::AlignLeft | Qt::AlignVCenter);
    }
}

const Grid::ColumnDesign& designOf(int column) { return Grid::design(Grid::Column(column)); }

/// Messages may have Windows line ends.
QString withPlainLineEnds(QString text) { return text.replace("\r\n", "\n").replace('\r', '\n'); }

QString typeName(int type) {
    if (type == fernwick::ERROR_MSG) return "Error";
    return type == fernwick::WARNING_MSG ? "Warning" : QString();
}

/// The whole message and its file and line. Escaped, as Qt would interpret angle brackets as HTML.
QString toolTipOf(const Grid::Row& row) {
    QString tip = QString("<p style='white-space:pre-wrap'>%1</p>")
                      .arg(withPlainLineEnds(qt(row.cells[Grid::MessageColumn])).toHtmlEscaped());
    const auto file = qt(row.cells[Grid::FileNameColumn]), line = qt(row.cells[Grid::LineColumn]);
    if (!file.isEmpty())
        tip +=
            QString("<p>%1</p>").arg((line.isEmpty() ? file : QString("%1, line %2").arg(file, line)).toHtmlEscaped());
    return tip;
}

} // namespace

MessageRows::MessageRows(basic::Ref<Document> document) : document_(std::move(document)) {
    newAtEnd_ = document_->rowCount() - Grid::kFixedRows;
    watches_.push_back(document_->added.connect([this](bool atTop) { ++(atTop ? newAtTop_ : newAtEnd_); }));
    watches_.push_back(document_->cleared.connect([this] { forget(); }));
    update();
}

int MessageRows::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int MessageRows::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(Grid::kColumns); }

void MessageRows::forget() {
    beginResetModel();
    rows_ = newAtTop_ = newAtEnd_ = 0;
    counts_.clear();
    endResetModel();
}

void MessageRows::update() {
    if (const int many = newAtTop_; many > 0) {
        beginInsertRows({}, 0, many - 1);
        rows_ += many;
        newAtTop_ = 0;
        for (int row = 0; row < many; ++row) ++counts_[document_->message(numberOf(row)).type];
        endInsertRows();
    }
    if (const int many = newAtEnd_; many > 0) {
        beginInsertRows({}, rows_, rows_ + many - 1);
        rows_ += many;
        newAtEnd_ = 0;
        for (int row = rows_ - many; row < rows_; ++row) ++counts_[document_->message(numberOf(row)).type];
        endInsertRows();
    }
}

int MessageRows::rowOf(std::int32_t number) const {
    const int row = number - newAtTop_ - Grid::kFixedRows;
    return row >= 0 && row < rows_ ? row : -1;
}

int MessageRows::count(int type) const {
    const auto found = counts_.find(type);
    return found == counts_.end() ? 0 : found->second;
}

QPixmap MessageRows::picture(int type) const {
    auto& picture = pictures_[type];
    if (picture.isNull()) (void)basic::attempt([&] { picture = pictureOf(*document_->pictureOf(type)); });
    return picture;
}

QVariant MessageRows::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rows_) return {};
    const auto number = numberOf(index.row());
    if (role == Qt::SizeHintRole) { return QSize(0, document_->msgGrid().rowHeight(number) / kTwipsPerPixel); }
    return cellData(document_->message(number), index.column(), role);
}

QVariant MessageRows::cellData(const Document::Row& row, int column, int role) const {
    switch (role) {
    case Qt::DisplayRole: return withPlainLineEnds(qt(row.cells[std::size_t(column)]));
    case Qt::ToolTipRole: return toolTipOf(row);
    case Qt::TextAlignmentRole: return qtAlignment(designOf(column).cells);
    case Qt::DecorationRole: return column == Grid::PictureColumn && row.picture ? picture(row.type) : QVariant();
    case Qt::AccessibleTextRole: return column == Grid::PictureColumn ? typeName(row.type) : QVariant();
    case kTypeRole: return row.type;
    default: return {};
    }
}

QVariant MessageRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    const auto& design = designOf(section);
    switch (role) {
    case Qt::DisplayRole: return QString(design.header);
    case Qt::TextAlignmentRole: return qtAlignment(design.headers);
    case Qt::AccessibleTextRole: return section == Grid::PictureColumn ? QString("Kind") : QString(design.header);
    case Qt::FontRole: {
        QFont font = QApplication::font();
        font.setBold(design.isHeaderBold);
        return font;
    }
    default: return {};
    }
}

} // namespace workbench
