#include "Apps/workbench/bars/bar_place.h"
#include "Apps/workbench/base/text.h"
#include <QSettings>
#include <algorithm>

namespace workbench {

Qt::ToolBarArea areaOf(int position) {
    for (const auto& side : kBarSides)
        if (side.position == position) return side.area;
    return Qt::TopToolBarArea;
}

bool isPlace(int position) {
    return position == office::msoBarFloating ||
           std::any_of(kBarSides.begin(), kBarSides.end(),
                       [=](const BarSide& side) { return side.position == position; });
}

BarPlace placeOf(const host::Bar& bar) {
    return {bar.Visible(), bar.Position(), bar.RowIndex(), bar.Left(), bar.Top()};
}

void setPlace(host::Bar& bar, const BarPlace& place) {
    bar.Visible(place.visible);
    bar.Position(place.position);
    bar.RowIndex(place.row);
    bar.Left(place.left);
    bar.Top(place.top);
}

namespace {

QString keyOf(const host::Bar& bar) { return "toolbars/" + qt(bar.Name()); }

} // namespace

void storePlace(const host::Bar& bar) {
    const auto place = placeOf(bar);
    QSettings().setValue(keyOf(bar), QVariantList{place.visible, place.position, place.row, place.left, place.top});
}

void restorePlace(host::Bar& bar) {
    const auto stored = QSettings().value(keyOf(bar)).toList();
    constexpr qsizetype kValues = 5;
    if (stored.size() != kValues) return;
    setPlace(bar, {stored[0].toBool(), stored[1].toInt(), stored[2].toInt(), stored[3].toInt(), stored[4].toInt()});
}

} // namespace workbench
