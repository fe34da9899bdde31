#pragma once
// The messages window, drawn from the rows that the add-in keeps.
#include "Add-in/build/udocCompileMsgs.h"
#include <QAbstractTableModel>
#include <QTimer>
#include <QWidget>
#include <functional>

class QLabel;
class QTreeView;

namespace workbench {

/// Reads the document's rows when they are drawn, not before.
class MessageRows final : public QAbstractTableModel {
public:
    explicit MessageRows(basic::Ref<fernwick::udocCompileMsgs> document) : document_(std::move(document)) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// The document's rows are other ones.
    void reread();

private:
    basic::Ref<fernwick::udocCompileMsgs> document_;
    int rows_ = 0;
};

class MessagesView final : public QWidget {
public:
    using Run = std::function<void(const std::function<void()>&)>;

    MessagesView(basic::Ref<fernwick::udocCompileMsgs> document, Run run);

    const basic::Ref<fernwick::udocCompileMsgs>& document() const { return document_; }
    /// Told when the rows have been drawn anew.
    std::function<void()> drawn = [] {};

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void draw();
    void setWidths();

    basic::Ref<fernwick::udocCompileMsgs> document_;
    MessageRows rows_;
    QTreeView* grid_;
    QLabel* status_;
    QTimer redraw_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
