#include "Apps/workbench/messages/message_filter.h"
#include "Apps/workbench/messages/message_rows.h"

namespace workbench {

using Grid = fernwick::MessageGrid;

namespace {

/// A folder's name would match all messages of a project.
QString withoutFolder(const QString& path) {
    return path.mid(std::max(path.lastIndexOf('/'), path.lastIndexOf('\\')) + 1);
}

} // namespace

void MessageFilter::showType(int type, bool shown) {
    if (shown)
        hidden_.erase(type);
    else
        hidden_.insert(type);
    invalidateFilter();
}

void MessageFilter::showText(const QString& text) {
    text_ = text;
    invalidateFilter();
}

bool MessageFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
    const auto at = [&](int column) { return sourceModel()->index(row, column, parent); };
    if (hidden_.count(at(0).data(MessageRows::kTypeRole).toInt()) > 0) return false;
    if (text_.isEmpty()) return true;
    for (int column = 0; column < Grid::kColumns; ++column) {
        auto cell = at(column).data().toString();
        if (column == Grid::FileNameColumn) cell = withoutFolder(cell);
        if (cell.contains(text_, Qt::CaseInsensitive)) return true;
    }
    return false;
}

bool MessageFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    switch (left.column()) {
    case Grid::PictureColumn:
        return left.data(MessageRows::kTypeRole).toInt() < right.data(MessageRows::kTypeRole).toInt();
    case Grid::LineColumn:
    case Grid::ErrorColumn: return left.data().toInt() < right.data().toInt();
    default: return left.data().toString().localeAwareCompare(right.data().toString()) < 0;
    }
}

} // namespace workbench
