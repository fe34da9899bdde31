#include "Apps/workbench/menu_editor/menu_list.h"
#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace workbench {

void MenuListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    auto row = option;
    initStyleOption(&row, index);
    const auto parts = row.text.split('\t');
    row.text = parts.front();
    auto* const style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    if (parts.size() < 2) return;
    constexpr int kMargin = 8;
    const bool isSelected = row.state & QStyle::State_Selected;
    painter->setPen(row.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(row.rect.adjusted(0, 0, -kMargin, 0), Qt::AlignRight | Qt::AlignVCenter, parts.back());
}

} // namespace workbench
