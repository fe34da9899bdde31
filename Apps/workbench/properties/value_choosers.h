#pragma once
// The windows in which values of properties are chosen.
#include "Apps/workbench/properties/property_rows.h"
#include <QPersistentModelIndex>
#include <QTableView>

namespace workbench {

/// Opens the window of a row's value at its cell. What the user chooses is set in all objects. Errors, such as those of a
/// file that is not a picture, go to the caller.
void chooseValue(QTableView& table, PropertyRows& rows, int row);

/// Removes the picture of a row. False if the row has none.
bool removePicture(PropertyRows& rows, int row);

} // namespace workbench
