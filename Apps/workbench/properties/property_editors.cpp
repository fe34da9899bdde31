#include "Apps/workbench/properties/property_editors.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/form_colours.h"
#include <QComboBox>
#include <QLineEdit>
#include <QPixmap>

namespace workbench {

namespace {

constexpr int kMostShownColours = 16;

void listColours(QComboBox& list) {
    list.setEditable(true);
    list.setInsertPolicy(QComboBox::NoInsert);
    list.setCompleter(nullptr);
    list.setMaxVisibleItems(kMostShownColours);
    for (const auto& colour : namedColours())
        list.addItem(colourSwatch(colour.value, list.iconSize()), colour.name, formColourText(colour.value));
}

} // namespace

QWidget* PropertyEditors::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
    const auto choices = rows_.choices(index.row());
    const bool isColour = rows_.details(index.row()).showsColour();
    const auto name = index.siblingAtColumn(PropertyRows::kNameColumn).data().toString();
    QWidget* editor = nullptr;
    if (choices.isEmpty() && !isColour) {
        auto* const line = new QLineEdit(parent);
        line->setFrame(false);
        editor = line;
    } else {
        auto* const list = new QComboBox(parent);
        list->addItems(choices);
        if (isColour) listColours(*list);
        applyAtOnce(*list);
        editor = list;
    }
    editor->setAccessibleName(name);
    return editor;
}

void PropertyEditors::applyAtOnce(QComboBox& list) const {
    auto* const self = const_cast<PropertyEditors*>(this); // createEditor is const, but signals are not
    connect(&list, &QComboBox::activated, self, [self, &list] {
        // a colour is chosen by name and entered as a number
        if (const auto chosen = list.currentData().toString(); !chosen.isEmpty()) list.setEditText(chosen);
        Q_EMIT self->commitData(&list);
        Q_EMIT self->closeEditor(&list);
    });
}

/// Covers the colour's swatch too, as the text needs the space.
void PropertyEditors::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                           const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

void PropertyEditors::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const auto shown = index.data(Qt::EditRole).toString();
    if (auto* line = dynamic_cast<QLineEdit*>(editor)) return line->setText(shown);
    auto& list = dynamic_cast<QComboBox&>(*editor);
    if (!list.isEditable()) return list.setCurrentText(shown);
    list.setCurrentIndex(-1); // the picture of a current item would take the space of the text
    list.setEditText(shown);
    list.lineEdit()->selectAll();
}

void PropertyEditors::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    const auto* line = dynamic_cast<QLineEdit*>(editor);
    model->setData(index, line ? line->text() : dynamic_cast<QComboBox&>(*editor).currentText());
}

} // namespace workbench
