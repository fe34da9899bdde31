#pragma once
// What the user types or chooses a value in.
#include "Apps/workbench/properties/property_rows.h"
#include <QStyledItemDelegate>

class QComboBox;

namespace workbench {

/// A list for what can be chosen, a list of colours that can be typed too, a line for all else. What is chosen from a list
/// is taken at once.
class PropertyEditors final : public QStyledItemDelegate {
public:
    explicit PropertyEditors(const PropertyRows& rows) : rows_(rows) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
    void takeAtOnce(QComboBox& list) const;

    const PropertyRows& rows_;
};

} // namespace workbench
