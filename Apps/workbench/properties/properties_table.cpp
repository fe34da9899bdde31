#include "Apps/workbench/properties/properties_table.h"
#include <QHeaderView>
#include <QKeyEvent>

namespace workbench {

namespace {

constexpr int kUsualNameWidth = 110, kRowPadding = 6;

} // namespace

PropertiesTable::PropertiesTable() {
    setObjectName("propertyTable");
    setAccessibleName("Properties");
    horizontalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultSectionSize(kUsualNameWidth);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | SelectedClicked);
}

void PropertiesTable::keyPressEvent(QKeyEvent* event) {
    const auto now = currentIndex();
    if (now.isValid() && event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier) return open(now);
    if (now.isValid() && event->key() == Qt::Key_Delete && remove(now)) return;
    QTableView::keyPressEvent(event);
}

} // namespace workbench
