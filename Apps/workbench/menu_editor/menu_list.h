#pragma once
#include <QStyledItemDelegate>

namespace workbench {

/// Draws the shortcut, which follows a tab in the text of a row, at the right.
class MenuListDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace workbench
