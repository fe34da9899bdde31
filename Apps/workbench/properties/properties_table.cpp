#include "Apps/workbench/properties/properties_table.h"
#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kUsualNameWidth = 110, kRowPadding = 6, kLeastWidth = 24;

} // namespace

PropertiesTable::PropertiesTable() {
    setObjectName("propertyTable");
    setAccessibleName("Properties");
    horizontalHeader()->hide();
    horizontalHeader()->setDefaultSectionSize(kUsualNameWidth);
    horizontalHeader()->setMinimumSectionSize(kLeastWidth); // else the widest letter's, and a narrow table would scroll
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

/// Half of a narrow table has the values.
void PropertiesTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    const int width = viewport()->width(), names = std::min(kUsualNameWidth, width / 2);
    setColumnWidth(0, names);
    setColumnWidth(1, width - names);
}

} // namespace workbench
