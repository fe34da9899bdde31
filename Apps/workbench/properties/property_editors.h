#pragma once
// The editors of values.
#include "Apps/workbench/properties/property_rows.h"
#include <QStyledItemDelegate>

class QComboBox;

namespace workbench {

/// A list for enumerations, an editable list for colours, a text field for all else. A choice from a list is applied at
/// once.
class PropertyEditors final : public QStyledItemDelegate {
public:
    explicit PropertyEditors(const PropertyRows& rows) : rows_(rows) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
    void applyAtOnce(QComboBox& list) const;

    const PropertyRows& rows_;
};

} // namespace workbench
