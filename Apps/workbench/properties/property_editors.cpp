#include "Apps/workbench/properties/property_editors.h"
#include "Apps/workbench/base/text.h"
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>

namespace workbench {

namespace {

constexpr int kMostShownChoices = 20;

QRect buttonOf(const QStyleOptionViewItem& option) {
    const int side = option.rect.height();
    return option.rect.adjusted(option.rect.width() - side, 0, 0, -1);
}

/// A dialog opens for "...", a window at the cell for an arrow.
void drawButton(QPainter& painter, const QStyleOptionViewItem& option, bool opensDialog) {
    QStyleOptionButton button;
    button.rect = buttonOf(option);
    button.palette = option.palette;
    button.state = QStyle::State_Enabled | QStyle::State_Raised;
    if (opensDialog) button.text = "...";
    auto* const style = QApplication::style();
    style->drawControl(QStyle::CE_PushButton, &button, &painter);
    if (opensDialog) return;
    constexpr int kMargin = 5;
    button.rect.adjust(kMargin, kMargin, -kMargin, -kMargin);
    style->drawPrimitive(QStyle::PE_IndicatorArrowDown, &button, &painter);
}

} // namespace

bool PropertyEditors::hasButton(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (index.column() != PropertyRows::kValueColumn) return false;
    const auto* view = dynamic_cast<const QAbstractItemView*>(option.widget);
    if (!view || view->currentIndex().row() != index.row()) return false;
    return rows_.chooser(index.row()) != Chooser::None || !rows_.choices(index.row()).isEmpty();
}

void PropertyEditors::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (!hasButton(option, index)) return QStyledItemDelegate::paint(painter, option, index);
    auto beside = option;
    beside.rect.setRight(buttonOf(option).left() - 1);
    QStyledItemDelegate::paint(painter, beside, index);
    const auto chooser = rows_.chooser(index.row());
    drawButton(*painter, option, chooser == Chooser::Font || chooser == Chooser::Picture);
}

bool PropertyEditors::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) {
    const bool isClick = event->type() == QEvent::MouseButtonRelease && hasButton(option, index) &&
                         buttonOf(option).contains(static_cast<QMouseEvent*>(event)->position().toPoint());
    if (!isClick) return QStyledItemDelegate::editorEvent(event, model, option, index);
    open_(index);
    return true;
}

QWidget* PropertyEditors::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
    const auto choices = rows_.choices(index.row());
    QWidget* editor = nullptr;
    if (choices.isEmpty()) {
        auto* const line = new QLineEdit(parent);
        line->setFrame(false);
        editor = line;
    } else {
        auto* const list = new QComboBox(parent);
        list->setMaxVisibleItems(kMostShownChoices);
        list->addItems(choices);
        applyAtOnce(*list);
        editor = list;
    }
    editor->setAccessibleName(rows_.name(index.row()));
    return editor;
}

void PropertyEditors::applyAtOnce(QComboBox& list) const {
    auto* const self = const_cast<PropertyEditors*>(this); // createEditor is const, but signals are not
    connect(&list, &QComboBox::activated, self, [self, &list] {
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
    list.setCurrentIndex(list.findText(shown)); // none for different values
}

void PropertyEditors::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    if (const auto* line = dynamic_cast<QLineEdit*>(editor)) {
        model->setData(index, line->text());
    } else if (const auto& list = dynamic_cast<QComboBox&>(*editor); list.currentIndex() >= 0) {
        model->setData(index, list.currentText());
    }
}

} // namespace workbench
