#pragma once
// The widgets of a form, as drawn in Qt Designer.
#include "Add-in/platform/form.h"
#include <QWidget>

namespace workbench {

/// Loads forms/TYPENAME.ui; object names are the names of the controls. Error 53 for a form without such a file.
QWidget* drawnForm(const fernwick::Form& form, QWidget* parent);

} // namespace workbench
