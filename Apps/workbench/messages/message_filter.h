#pragma once
#include <QSortFilterProxyModel>
#include <set>

namespace workbench {

/// Filters and sorts the messages that are drawn. Commands use the row numbers of the source model.
class MessageFilter final : public QSortFilterProxyModel {
public:
    /// Messages that are neither errors nor warnings are always shown.
    void showType(int type, bool shown);
    /// Shows only messages with this text in one of their cells, ignoring case; "" shows all.
    void showText(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    std::set<int> hidden_;
    QString text_;
};

} // namespace workbench
