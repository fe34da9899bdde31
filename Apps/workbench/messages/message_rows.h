#pragma once
// The rows of the messages window as a Qt model.
#include "Add-in/build/messages/udocCompileMsgs.h"
#include <QAbstractTableModel>
#include <QPixmap>
#include <map>

namespace workbench {

/// Order, texts and heights come from the document. New rows appear together at the next update(); removed rows
/// disappear at once.
class MessageRows final : public QAbstractTableModel {
public:
    using Document = fernwick::udocCompileMsgs;
    /// A row's tMessageType, or 0.
    static constexpr int kTypeRole = Qt::UserRole;

    explicit MessageRows(basic::Ref<Document> document);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void update();
    /// The row's number in the document, from 1.
    std::int32_t numberOf(int row) const { return row + newAtTop_ + 1; }
    /// -1 for the header and for rows that update() has not added yet.
    int rowOf(std::int32_t number) const;
    /// The number of rows of this type.
    int count(int type) const;
    /// The picture of a type; null if the installation has none.
    QPixmap picture(int type) const;

private:
    void forget();
    QVariant cellData(const Document::Row& row, int column, int role) const;

    basic::Ref<Document> document_;
    int rows_ = 0, newAtTop_ = 0, newAtEnd_ = 0;
    std::map<int, int> counts_;
    mutable std::map<int, QPixmap> pictures_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
