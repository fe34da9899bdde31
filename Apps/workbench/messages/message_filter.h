#pragma once
#include <QSortFilterProxyModel>
#include <set>

namespace workbench {

/// Which messages are drawn and in which order. What commands use are the numbers of the list behind it.
class MessageFilter final : public QSortFilterProxyModel {
public:
    /// Messages that are neither errors nor warnings always show.
    void showType(int type, bool shown);
    /// Only messages with this text in one of their cells, letter case ignored; "" for all.
    void showText(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    std::set<int> hidden_;
    QString text_;
};

} // namespace workbench
