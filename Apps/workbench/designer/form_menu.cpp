#include "Apps/workbench/designer/form_menu.h"
#include "Apps/workbench/designer/form_painter.h"
#include <QAction>
#include <QMenu>

namespace workbench {

namespace {

void fillMenu(QMenu& menu, const std::vector<DrawnMenu>& items, FormView& view) {
    for (const auto& item : items) {
        if (item.caption == "-") {
            menu.addSeparator();
        } else if (!item.items.empty()) {
            fillMenu(*menu.addMenu(item.caption), item.items, view);
        } else {
            auto* const action = menu.addAction(item.caption);
            action->setCheckable(item.checked);
            action->setChecked(item.checked);
            QObject::connect(action, &QAction::triggered, &view, [&view, control = item.control] {
                view.select(control);
                view.openCode(control);
            });
        }
    }
}

void popUp(FormView& view, QWidget& canvas, const DrawnMenu& drawn, const QPointF& at) {
    view.select(drawn.control);
    if (drawn.items.empty()) return;
    auto* const menu = new QMenu(&canvas);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu, drawn.items, view);
    menu->popup(canvas.mapToGlobal(at.toPoint()));
}

} // namespace

bool openMenuAt(FormView& view, QWidget& canvas, const QPointF& place, const QPointF& corner) {
    const auto& form = view.picture();
    for (const auto& [number, area] : menuPlaces(form)) {
        if (!area.contains(place - corner)) continue;
        popUp(view, canvas, form.menus[number], area.bottomLeft() + corner);
        return true;
    }
    return false;
}

} // namespace workbench
