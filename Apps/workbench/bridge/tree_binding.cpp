#include "Apps/workbench/bridge/tree_binding.h"
#include "Apps/workbench/base/text.h"
#include <QHash>
#include <QSignalBlocker>
#include <QTimer>

namespace workbench {

namespace {

constexpr int kKeyRole = Qt::UserRole;

void showTree(const fernwick::TreeView& control, QTreeWidget& widget) {
    const QSignalBlocker ours(widget);
    widget.clear();
    QHash<QString, QTreeWidgetItem*> items;
    for (const auto& node : control.Nodes()) {
        auto* const item = new QTreeWidgetItem({qt(node.Text)});
        item->setData(0, kKeyRole, qt(node.Key));
        items[qt(node.Key)] = item;
        if (node.Parent.empty())
            widget.addTopLevelItem(item);
        else
            items[qt(node.Parent)]->addChild(item);
    }
    for (const auto& node : control.Nodes()) items[qt(node.Key)]->setExpanded(node.Expanded);
    widget.setCurrentItem(items.value(qt(control.SelectedItem())));
}

/// The current node only, so that the tree keeps what it draws while the user moves through it.
void showSelection(const fernwick::TreeView& control, QTreeWidget& widget) {
    const QSignalBlocker ours(widget);
    for (QTreeWidgetItemIterator item(&widget); *item; ++item)
        if ((*item)->data(0, kKeyRole).toString() == qt(control.SelectedItem())) return widget.setCurrentItem(*item);
    widget.setCurrentItem(nullptr);
}

} // namespace

void bindTreeView(fernwick::TreeView& control, QTreeWidget& widget, Binding& binding) {
    widget.setHeaderHidden(true);
    const auto select = [&control, &widget] { showSelection(control, widget); };
    showTree(control, widget);
    binding.keep(control.NodesChanged.connect([&control, &widget] { showTree(control, widget); }));
    binding.keep(control.SelectionChanged.connect(select));
    QObject::connect(&widget, &QTreeWidget::itemSelectionChanged, &widget, [&control, &widget, &binding, select] {
        const auto chosen = widget.selectedItems();
        if (chosen.isEmpty()) return;
        const auto key = text(chosen.front()->data(0, kKeyRole).toString());
        binding.act([&] { control.choose(key); });
        // A refused choice: Qt makes the node current after this signal.
        QTimer::singleShot(0, &widget, select);
    });
}

} // namespace workbench
