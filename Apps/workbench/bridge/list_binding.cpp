#include "Apps/workbench/bridge/list_binding.h"
#include "Apps/workbench/base/text.h"
#include <QSignalBlocker>

namespace workbench {

namespace {

using namespace fernwick;

void showRow(const ListBox& control, QListWidget& widget, int row) {
    auto* const item = widget.item(row);
    item->setText(qt(control.List(row)));
    if (control.choice == ListBox::Choice::Several) item->setSelected(control.Selected(row));
    if (control.choice == ListBox::Choice::Ticks)
        item->setCheckState(control.Selected(row) ? Qt::Checked : Qt::Unchecked);
}

void showRows(const ListBox& control, QListWidget& widget) {
    widget.clear();
    for (int row = 0; row < control.ListCount(); ++row) {
        widget.addItem(QString());
        showRow(control, widget, row);
    }
}

void showChange(const ListBox& control, QListWidget& widget, const ListBox::Change& change) {
    switch (change.kind) {
    case ListBox::Change::Reset: return showRows(control, widget);
    case ListBox::Change::Inserted: widget.insertItem(change.row, QString()); break;
    case ListBox::Change::Removed: delete widget.takeItem(change.row); return;
    case ListBox::Change::Altered: break;
    }
    if (change.row >= 0) showRow(control, widget, change.row);
}

void takeSelection(ListBox& control, const QListWidget& widget) {
    if (control.choice != ListBox::Choice::Several) {
        // not the current row: getting the focus makes the first row current without a choice
        const auto chosen = widget.selectedItems();
        const int row = chosen.isEmpty() ? -1 : widget.row(chosen.front());
        if (row != control.ListIndex()) control.ListIndex(row);
        return;
    }
    QList<bool> selected;
    for (int row = 0; row < widget.count(); ++row) selected << widget.item(row)->isSelected();
    for (int row = 0; row < selected.size(); ++row)
        if (selected[row] != control.Selected(row)) control.Selected(row, selected[row]);
}

} // namespace

void bindListBox(ListBox& control, QListWidget& widget, Binding& binding) {
    const bool selectsSeveral = control.choice == ListBox::Choice::Several;
    if (selectsSeveral) widget.setSelectionMode(QAbstractItemView::ExtendedSelection);
    const auto show = [&control, &widget, selectsSeveral](const ListBox::Change& change) {
        const QSignalBlocker ours(widget);
        showChange(control, widget, change);
        if (!selectsSeveral) widget.setCurrentRow(control.ListIndex());
    };
    show({ListBox::Change::Reset, -1});
    binding.keep(control.changed.connect(show));
    QObject::connect(&widget, &QListWidget::itemSelectionChanged, &widget,
                     [&] { binding.act([&] { takeSelection(control, widget); }); });
    QObject::connect(&widget, &QListWidget::itemDoubleClicked, &widget,
                     [&] { binding.act([&] { control.DblClick.raise(); }); });
    if (control.choice != ListBox::Choice::Ticks) return;
    QObject::connect(&widget, &QListWidget::itemChanged, &widget, [&](const QListWidgetItem* item) {
        binding.act([&] { control.Selected(widget.row(item), item->checkState() == Qt::Checked); });
    });
}

void bindComboBox(ComboBox& control, QComboBox& widget, Binding& binding) {
    const auto show = [&control, &widget](const ListBox::Change&) {
        const QSignalBlocker ours(widget);
        widget.clear();
        for (int row = 0; row < control.ListCount(); ++row) widget.addItem(qt(control.List(row)));
        widget.setCurrentIndex(control.ListIndex());
    };
    show({ListBox::Change::Reset, -1});
    binding.keep(control.changed.connect(show));
    QObject::connect(&widget, &QComboBox::activated, &widget,
                     [&](int row) { binding.act([&] { control.ListIndex(row); }); });
}

} // namespace workbench
