#include "Apps/workbench/bridge/tree_binding.h"
#include "Apps/workbench/base/text.h"
#include <QHash>
#include <QKeyEvent>
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

std::string keyOf(const QTreeWidgetItem& item) { return text(item.data(0, kKeyRole).toString()); }

/// The arrow keys go past a heading that refuses to be chosen, which would otherwise end their way.
class ArrowKeys final : public QObject {
public:
    ArrowKeys(fernwick::TreeView& control, QTreeWidget& widget, const Binding& binding)
        : QObject(&widget), control_(control), widget_(widget), binding_(binding) {
        widget.installEventFilter(this);
    }

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const int key = static_cast<const QKeyEvent*>(event)->key();
        if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
        move(key == Qt::Key_Up ? &QTreeWidget::itemAbove : &QTreeWidget::itemBelow);
        return true;
    }
    void move(QTreeWidgetItem* (QTreeWidget::*next)(const QTreeWidgetItem*) const) {
        for (auto* item = (widget_.*next)(widget_.currentItem()); item; item = (widget_.*next)(item)) {
            binding_.act([&] { control_.choose(keyOf(*item)); });
            if (control_.SelectedItem() == keyOf(*item) || item->childCount() == 0) return;
        }
    }

    fernwick::TreeView& control_;
    QTreeWidget& widget_;
    const Binding& binding_;
};

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
        binding.act([&] { control.choose(keyOf(*chosen.front())); });
        // A refused choice: Qt makes the node current after this signal.
        QTimer::singleShot(0, &widget, select);
    });
    new ArrowKeys(control, widget, binding); // owned by the widget
}

} // namespace workbench
