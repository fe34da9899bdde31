#include "Apps/workbench/bridge/grid_binding.h"
#include "Apps/workbench/base/text.h"
#include <QHeaderView>
#include <QSignalBlocker>

namespace workbench {

namespace {

using namespace fernwick;

constexpr int kTwipsPerPixel = 15;
constexpr int kUsualPixels = 180;

QStringList cellsOf(const Grid& grid, int row) {
    QStringList cells;
    for (int column = 0; column < grid.Cols(); ++column) cells << qt(grid.TextMatrix(row, column));
    return cells;
}

void showCells(const Grid& grid, QTreeWidget& widget) {
    widget.clear();
    widget.setColumnCount(grid.Cols());
    widget.setHeaderLabels(cellsOf(grid, 0));
    for (int row = 1; row < grid.Rows(); ++row) {
        auto* const item = new QTreeWidgetItem(&widget, cellsOf(grid, row));
        for (int column = 0; column < grid.Cols(); ++column) item->setToolTip(column, item->text(column));
    }
}

void showSelection(const Grid& grid, QTreeWidget& widget) {
    auto* const item = grid.Row() > 0 ? widget.topLevelItem(grid.Row() - 1) : nullptr;
    if (item == widget.currentItem() && item && item->isSelected()) return;
    widget.setCurrentItem(item);
    if (!item) widget.clearSelection();
}

void showWidths(const Grid& grid, QTreeWidget& widget) {
    for (int column = 0; column + 1 < grid.Cols(); ++column) {
        const int twips = grid.ColWidth(column);
        widget.header()->resizeSection(column, twips == Grid::kUsualWidth ? kUsualPixels : twips / kTwipsPerPixel);
    }
}

void showTabs(const TabStrip& strip, QTabBar& widget) {
    const auto& tabs = strip.Tabs();
    while (widget.count() > int(tabs.size())) widget.removeTab(widget.count() - 1);
    for (int i = 0; i < int(tabs.size()); ++i)
        if (i == widget.count())
            widget.addTab(qt(tabs[std::size_t(i)]));
        else
            widget.setTabText(i, qt(tabs[std::size_t(i)]));
    widget.setCurrentIndex(strip.SelectedItem() - 1);
}

} // namespace

void bindGrid(Grid& control, QTreeWidget& widget, Binding& binding) {
    widget.setRootIsDecorated(false);
    widget.setUniformRowHeights(true);
    widget.setTextElideMode(Qt::ElideMiddle);
    const auto show = [&control, &widget](Grid::Change change) {
        const QSignalBlocker ours(widget), headersToo(widget.header());
        if (change == Grid::Change::Cells) showCells(control, widget);
        if (change != Grid::Change::Row) showWidths(control, widget);
        showSelection(control, widget);
    };
    show(Grid::Change::Cells);
    binding.keep(control.changed.connect(show));
    QObject::connect(&widget, &QTreeWidget::itemSelectionChanged, &widget, [&] {
        const auto chosen = widget.selectedItems();
        const int row = chosen.isEmpty() ? 0 : widget.indexOfTopLevelItem(chosen.front()) + 1;
        binding.act([&] { control.choose(row); });
    });
    QObject::connect(&widget, &QTreeWidget::itemDoubleClicked, &widget,
                     [&] { binding.act([&] { control.DblClick.raise(); }); });
    QObject::connect(widget.header(), &QHeaderView::sectionResized, &widget, [&](int column, int, int pixels) {
        if (column + 1 < control.Cols()) binding.act([&] { control.ColWidth(column, pixels * kTwipsPerPixel); });
    });
}

void bindTabStrip(TabStrip& control, QTabBar& widget, Binding& binding) {
    widget.setExpanding(false);
    widget.setDrawBase(false);
    const auto show = [&control, &widget] {
        const QSignalBlocker ours(widget);
        showTabs(control, widget);
    };
    show();
    binding.keep(control.changed.connect(show));
    QObject::connect(&widget, &QTabBar::currentChanged, &widget,
                     [&](int tab) { binding.act([&] { control.SelectedItem(tab + 1); }); });
}

} // namespace workbench
