#pragma once
// The editors of values.
#include "Apps/workbench/properties/property_rows.h"
#include <QStyledItemDelegate>
#include <functional>

class QComboBox;

namespace workbench {

/// A list for enumerations, a text field for all else. A choice from a list is applied at once. The current row has a
/// button if its value can be chosen in a list or another window.
class PropertyEditors final : public QStyledItemDelegate {
public:
    /// Called for a click on the button.
    using Open = std::function<void(const QModelIndex&)>;

    PropertyEditors(const PropertyRows& rows, Open open) : rows_(rows), open_(std::move(open)) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
    bool hasButton(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void applyAtOnce(QComboBox& list) const;

    const PropertyRows& rows_;
    Open open_;
};

} // namespace workbench
