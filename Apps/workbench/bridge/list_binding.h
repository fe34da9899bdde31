#pragma once
// Draws lists of texts.
#include "Add-in/platform/combo_box.h"
#include "Apps/workbench/bridge/binder.h"
#include <QComboBox>
#include <QListWidget>

namespace workbench {

void bindListBox(fernwick::ListBox& control, QListWidget& widget, Binding& binding);
void bindComboBox(fernwick::ComboBox& control, QComboBox& widget, Binding& binding);

} // namespace workbench
