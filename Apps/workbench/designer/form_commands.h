#pragma once
// Commands on the controls that are selected on a form.
#include "Apps/workbench/arrange/arrangement.h"

namespace workbench {

class FormView;

/// Whether enough controls are selected, on a form that is not locked.
bool canArrange(const FormView& view, Arrangement how);
void arrange(FormView& view, Arrangement how);

/// Whether any control that is drawn is selected.
bool hasSelection(const FormView& view);
void bringToFront(FormView& view);
void sendToBack(FormView& view);
/// Selects all controls of the container that the selection is in.
void selectAll(FormView& view);

bool isLocked(const FormView& view);
/// Locks or unlocks the controls of a form.
void switchLock(FormView& view);

} // namespace workbench
