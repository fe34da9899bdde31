#pragma once
// Controls on the clipboard.
#include <QString>
#include <string>

namespace workbench {

class FormView;

/// Copies the selected controls with those within them, as the lines of the form's file.
void copyControls(const FormView& view);
void cutControls(FormView& view);
bool hasCopiedControls();
/// Adds the copied controls to the selected container, or to the form, and selects them. For a name that is in use, asks
/// whether to create a control array.
void pasteControls(FormView& view);
/// Adds a copy of the selected controls beside them.
void duplicateControls(FormView& view);

} // namespace workbench
